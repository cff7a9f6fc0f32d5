#pragma once

#include "AxFormation.h"
#include "AxReaderWriterFile.h"

/// A formation that a unit knows under a name, given in place or in a file of its own (".frm").
class ZEDOBJPARAM_API AxFormationTableEntry : public AxRecordOf<AxFormationTableEntry, "AxFormationTableEntry">
{
public:
    AxFormationTableEntry();
    AxFormationTableEntry(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxFormationTableEntry(AxFormationTableEntry const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxFormationTableEntry() override;
    AxFormationTableEntry& operator=(AxFormationTableEntry const& other);

    virtual AxString const& formationType() const { return myFormationType.value(); }
    virtual void setFormationType(AxString const& type);
    virtual AxFilename const& formationFile() const { return myFormationFile.filename(); }
    /// Nothing is loaded.
    virtual void setFormationFile(AxFilename const& file) { assignSpecified(myFormationFile, file); }
    /// Knows its type from this entry.
    virtual AxFormation& formation();
    virtual AxFormation const& formation() const;

    /// What the entries of a table are called in text.
    static AxSymbolString elementWord();

private:
    AxRwString myFormationType{{"formation-type", "", "What the formation is called."}, registry()};
    AxReaderWriterFile myFormationFile{{"formation-file", "", "File that holds the formation."}, registry()};
    /// Takes over its type when it is asked for, since text, copies and variables change that one, too.
    mutable AxFormation myFormation{{"formation", "", "The formation, unless a file is named."}, registry()};
};
