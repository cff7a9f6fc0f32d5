#pragma once

#include "AxReaderWriter.h"
#include "AxZedParameterDb.h"

#include <boost/shared_ptr.hpp>
#include <map>
#include <memory>
#include <vector>

class AxRemoteConfigurationList;
class AxSxpParameterDbEntry;
class AxSxpParameterDbFileData;
class AxSxpParameterDbReader;
class AxSxpParameterDbWriter;

/// A parameter database on disk: a file that lists types (".opd") and one file for each record (".ope").
///
/// Make it, `init` it, set the search paths, `load` it; a record is read when its type is first looked up. `save`
/// writes every record that is held, with all its values, beside the database file. Owns entries, records, reader,
/// writer and the remote configurations; shares the variable sets with its entries.
class ZEDOBJPARAM_API AxSxpParameterDb : public AxZedParameterDb
{
public:
    using RemoteConfigurationListCreator = AxRemoteConfigurationList* (*)(AxString const& name,
                                                                          AxReaderWriterRegistry* registry);
    using VariableBindingsPtr = boost::shared_ptr<AxRwVariableBindings>;
    using CopyPairs = std::map<AxString, AxString>;

    AxSxpParameterDb();
    ~AxSxpParameterDb() override;

    bool init() override;
    /// `matchedType` receives the record's type when a record comes back, else the entry's; `info` the entry's file.
    AxZedObjectParameters* lookup(AxObjectType const& type, AxObjectType* matchedType = nullptr,
                                  AxString* info = nullptr) const override;
    /// Deletes entries and remote configurations.
    void removeAll() override;
    /// Adds the entries of a database file to those that are there; records are not read yet. A load that fails
    /// changes nothing but the dependent pairs.
    bool load(AxFilename const& file) override;
    /// Writes "dir/x.opd" and the records that are held below "dir/x". Either all files are replaced or none; a disk
    /// that fails for good on the way, or the end of the process, leaves each file old or new and the database
    /// readable.
    bool save(AxFilename const& file) override;

    using AxZedParameterDb::add;
    // ---- The order of the virtual operations is part of the interface. ----
    /// Adds an entry for a record in a file; `params`, usually null, is the record if it is there already.
    virtual AxSxpParameterDbEntry* add(AxObjectType const& type, AxFilename const& file, bool typeIsMatchType,
                                       AxZedObjectParameters* params);
    virtual bool createRemoteConfigurationList();
    /// Loads and then reads every record. True when the database file was loaded, whatever the records gave.
    virtual bool loadAll(AxFilename const& file);
    virtual void setVersionNumber(int version);
    /// Version of the file loaded last; 101 before the first load and after a save.
    virtual int versionNumber() const;
    /// The file `from` is copied to `to` by the next saves.
    virtual void addDependentParameterFileToCopyPair(AxFilename const& from, AxFilename const& to);
    virtual void clearDependentParameterFileToCopyPairs();
    virtual CopyPairs const& dependentParameterFileToCopyPairs() const;
    /// Names of table files that are relative to the application become relative to the record's file, each kind of
    /// table in its directory.
    virtual void updateReaderWriterFilePaths(AxZedObjectParameters& parameters);
    /// The name without `extension`, or as it is when it does not end so. Upper and lower case differ.
    virtual AxFilename stripExtension(AxFilename const& file, AxString const& extension) const;
    virtual void addVariableBindings(VariableBindingsPtr const& bindings);
    virtual std::list<VariableBindingsPtr> const& variableBindings() const;
    /// Takes ownership; the former reader is deleted.
    virtual void setReader(AxSxpParameterDbReader* reader);
    /// Takes ownership; the former writer is deleted.
    virtual void setWriter(AxSxpParameterDbWriter* writer);
    virtual std::vector<AxFilename> const& searchPaths() const;
    /// For the entries of later loads.
    virtual void setSearchPaths(std::vector<AxFilename> const& paths);

protected:
    virtual AxSxpParameterDbReader* createParamDbReader();
    virtual AxSxpParameterDbWriter* createSxpParamDbWriter();
    /// Copies the five table directories with all that is in them; false when one could not be copied.
    virtual bool copyDependentParameterDirectories(AxFilename const& from, AxFilename const& to);
    /// The name up to its last separator; null when that is its first character or there is none.
    virtual AxFilename getPath(AxFilename const& file) const;
    /// The record of an entry, read now if it was not yet.
    virtual AxZedObjectParameters* getParameters(AxSxpParameterDbEntry* entry) const;
    // ---- End of the virtual operations. ----

    AxZedParameterDbEntry* createParameterEntry() const override;

public:
    AxSxpParameterDbReader* dbReader() const { return myReader.get(); }
    AxSxpParameterDbWriter* dbWriter() const { return myWriter.get(); }
    AxRemoteConfigurationList* remoteConfigurationList() { return myRemoteConfigurationList.get(); }
    AxRemoteConfigurationList const* remoteConfigurationList() const { return myRemoteConfigurationList.get(); }
    RemoteConfigurationListCreator remoteConfigurationListCreatorFcn() const { return myListCreator; }
    void setRemoteConfigurationListCreatorFcn(RemoteConfigurationListCreator creator) { myListCreator = creator; }

    /// Registers a dependent pair for each entry whose record was not read and whose file would not be found from a
    /// database file in `directory`, so that a save to there takes the file along. Answers how many.
    int addUnloadedFilesToCopyPairs(AxFilename const& directory);
    /// What became of the entries that loads found below data roots. Unless they are untouched, a data root in a saved
    /// file would at the next load bring back what was edited, removed or replaced here.
    enum class DataRoots
    {
        Untouched,
        Read,   ///< records of some are held, and saved as parameter files
        Changed ///< some were removed, replaced or are no longer what was found
    };
    DataRoots dataRoots() const;
    /// Items of loaded files that nothing understood, written back by a save. Null when there are none.
    AxSxpParameterDbFileData const* unreadItems() const { return myUnreadItems.get(); }
    /// Takes over what `data` could not read.
    void keepUnreadItems(AxSxpParameterDbFileData const& data);

    static AxSxpParameterDb* create();
    static AxString const& opdFilenameExtension();
    static AxString const& opeFilenameExtension();
    /// Extension of a table file, without the point, to the directory of such tables.
    static std::map<AxString, AxFilename> const& extensionToPathMap();
    static AxFilename const& theOldParameterDbDirectory();

private:
    friend class AxSxpParameterDbReader;

    AxFilename fileTableName(AxFilename const& file) const;
    void noteDataRoot(AxFilename const& databaseFile);

    std::unique_ptr<AxSxpParameterDbReader> myReader;
    std::unique_ptr<AxSxpParameterDbWriter> myWriter;
    int myVersionNumber;
    std::list<VariableBindingsPtr> myVariableBindings;
    CopyPairs myCopyPairs;
    std::map<AxString, std::size_t> myDataRoots; // what was found, summed up by the database file that binds one
    std::vector<AxFilename> mySearchPaths;
    std::unique_ptr<AxRemoteConfigurationList> myRemoteConfigurationList;
    RemoteConfigurationListCreator myListCreator;
    std::unique_ptr<AxSxpParameterDbFileData> myUnreadItems;
};
