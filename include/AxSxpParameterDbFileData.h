#pragma once

#include "AxRecordOf.h"
#include "AxRwInt.h"
#include "AxRwVariableBindings.h"
#include "AxSxpParameterDbFileEntryList.h"

class AxRemoteConfigurationList;

/// A parameter database file in memory: its version, the types it knows with the files of their records, and the
/// variables it defines. Made for one load or one save.
class ZEDOBJPARAM_API AxSxpParameterDbFileData : public AxRecordOf<AxSxpParameterDbFileData, "parameter-database">
{
public:
    using AxRecordOf::AxRecordOf;
    AxSxpParameterDbFileData();
    ~AxSxpParameterDbFileData() override;

    AxSxpParameterDbFileEntry* addEntry(AxObjectType const& type, AxFilename const& file, bool typeIsMatchType,
                                        AxZedObjectParameters* parameters);
    AxSxpParameterDbFileEntryList& entryList() { return myEntries; }
    AxSxpParameterDbFileEntryList const& entryList() const { return myEntries; }
    int version() const { return myVersion.value(); }
    void setVersion(int version);
    bool versionSpecified() const { return myVersion.valueSpecified(); }

    /// Not owned, null by default; to be made in this object's registry so that it is read and written.
    AxRemoteConfigurationList* remoteConfigurationList() { return myRemoteConfigurationList; }
    AxRemoteConfigurationList const* remoteConfigurationList() const { return myRemoteConfigurationList; }
    void setRemoteConfigurationList(AxRemoteConfigurationList* list) { myRemoteConfigurationList = list; }

    /// The variables that the file defines; they hold for everything else in it.
    AxRwVariableBindings& variableBindings() { return myVariableBindings; }
    AxRwVariableBindings const& variableBindings() const { return myVariableBindings; }
    /// Where the text that was read binds "data-root"; zeros when it does not.
    unsigned dataRootLine() const { return myDataRootLine; }
    unsigned dataRootColumn() const { return myDataRootColumn; }

    /// Reads the version alone, 0 when the file has none. False, after a warning, when the file cannot be read so far.
    static bool getVersion(AxFilename const& file, int& version);

    using AxRecordOf::getSelf;
    using AxRecordOf::putData;
    void getSelf(AxlObjPtr const& expression, AxFilenameList const& files, AxBindingsList const& bindings) override;
    void putData(std::string& out, int indent) override;

private:
    struct Entry;
    static Entry const ourEntry;

    void takeVariables(AxlObj const* item, AxFilenameList const& files, AxBindingsList const& bindings);

    AxRwInt myVersion{{"version", "", "Version of the file's form."}, 101, registry()};
    AxSxpParameterDbFileEntryList myEntries{{"parameter-files", "", "Types and the files of their records."},
                                            registry()};
    AxRwVariableBindings myVariableBindings;
    AxRemoteConfigurationList* myRemoteConfigurationList = nullptr;
    unsigned myDataRootLine = 0;
    unsigned myDataRootColumn = 0;
};
