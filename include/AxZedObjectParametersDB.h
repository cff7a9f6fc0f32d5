#pragma once

#include "AxReaderWriter.h"

#include <memory>

class AxObjectType;
class AxZedObjectParameters;
class AxZedObjectParametersList;

/// A whole set of parameter records in one file.
class ZEDOBJPARAM_API AxZedObjectParametersDB : public AxReaderWriter
{
public:
    AxZedObjectParametersDB(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxZedObjectParametersDB(AxString const& name, AxReaderWriterRegistry* registry);
    AxZedObjectParametersDB(char const* name, AxReaderWriterRegistry* registry);
    AxZedObjectParametersDB(AxZedObjectParametersDB const&) = delete;
    AxZedObjectParametersDB& operator=(AxZedObjectParametersDB const&) = delete;
    ~AxZedObjectParametersDB() override;

    // ---- The order of the virtual operations is part of the interface. ----
    virtual bool init();
    /// Replaces the list by a new, empty one.
    virtual bool createParametersList();
    virtual void addParameters(AxZedObjectParameters* record);
    virtual AxZedObjectParameters* lookupParameters(AxObjectType const& type, AxObjectType* matched) const;
    virtual void removeParameters(AxObjectType const& type);
    /// Replaces the records by those of the file, each with what it inherits. False after a line on the verbose stream
    /// for a file that cannot be opened, after a warning for one that cannot be parsed.
    virtual bool readParameterFile(AxString const& file);
    virtual bool writeParameterFile(AxString const& file);
    virtual void removeAndDeleteAll();
    // ---- End of the virtual operations. ----

    /// Null before `init`.
    AxZedObjectParametersList* parametersList() const { return myList.get(); }
    char const* readerWriterType() const override;

private:
    std::unique_ptr<AxZedObjectParametersList> myList;
};
