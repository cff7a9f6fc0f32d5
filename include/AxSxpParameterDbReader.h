#pragma once

#include "AxExport.h"
#include "AxFilename.h"

#include <boost/shared_ptr.hpp>
#include <cstdio>

class AxSxpParameterDb;
class AxSxpParameterDbEntry;
class AxSxpParameterDbFileData;
class AxSxpParameterDbFileEntry;
class AxZedObjectParametersList;

/// Turns a parameter database file into the entries of a database. Keeps no state between calls; each step can be
/// replaced by a derived reader.
class ZEDOBJPARAM_API AxSxpParameterDbReader
{
public:
    AxSxpParameterDbReader() = default;
    AxSxpParameterDbReader(AxSxpParameterDbReader const&) = delete;
    AxSxpParameterDbReader& operator=(AxSxpParameterDbReader const&) = delete;

    // ---- The order of the virtual operations is part of the interface. ----
    virtual ~AxSxpParameterDbReader();
    /// Adds the entries of `file` to `db`. A failure leaves entries, version and variables of `db` as they are.
    virtual bool loadParameterDb(AxFilename const& file, AxSxpParameterDb* db);

protected:
    virtual AxSxpParameterDbFileData* createParameterDbFileData();
    virtual bool load(AxFilename const& file, AxZedObjectParametersList* list);
    /// `dataRoot` receives the absolute directory of entity files when the file binds "data-root".
    virtual bool load(AxFilename const& file, AxSxpParameterDbFileData* data, AxFilename& dataRoot);
    /// Adds a copy of each record, without a file.
    virtual bool putFileDataInParameterDb(AxZedObjectParametersList const& list, AxSxpParameterDb* db);
    virtual bool putFileDataInParameterDb(AxSxpParameterDbFileData const& data, AxFilename const& basePath,
                                          AxSxpParameterDb* db);
    virtual void setFilenamePathsRelativeToFile(AxFilename const& file, AxSxpParameterDbFileData* data);
    /// `stream` stays the caller's.
    virtual bool readFileData(AxFilename const& file, AxSxpParameterDbFileData* data, std::FILE* stream,
                              AxFilename& dataRoot);
    /// Called after each entry; does nothing here.
    virtual void entryAddedFor(AxSxpParameterDbFileEntry* fileEntry, AxSxpParameterDbEntry* dbEntry);
    // ---- End of the virtual operations. ----

private:
    bool loadData(AxFilename const& file, int version, AxSxpParameterDbFileData& data, AxSxpParameterDb& db);
    void addEntityFiles(AxFilename const& dataRoot, AxSxpParameterDbFileData& data);
    struct Adding;

    // The file being loaded, and its directory.
    boost::shared_ptr<AxFilename const> myDatabaseFile;
    AxFilename myDatabaseDirectory;
};
