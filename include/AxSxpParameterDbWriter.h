#pragma once

#include "AxFilename.h"
#include "AxObjectType.h"
#include "AxString.h"

#include <string>

class AxReaderWriter;
class AxSxpParameterDb;
class AxSxpParameterDbEntry;
class AxSxpParameterDbFileData;
class AxZedObjectParameters;

/// Writes a parameter database: the file that lists its types and one file for each record that is held.
///
/// All files of one `write` are written beside their targets first and renamed together, the database file last. One
/// `write` runs at a time in a process. Each step can be replaced by a derived writer.
class ZEDOBJPARAM_API AxSxpParameterDbWriter
{
public:
    AxSxpParameterDbWriter() = default;
    AxSxpParameterDbWriter(AxSxpParameterDbWriter const&) = delete;
    AxSxpParameterDbWriter& operator=(AxSxpParameterDbWriter const&) = delete;

    // ---- The order of the virtual operations is part of the interface. ----
    virtual ~AxSxpParameterDbWriter();
    /// Writes `db` to `file` and its records to `parameterDir`, which is relative to the file's directory. The
    /// database becomes version 101. A record that cannot be written is reported and keeps its former file.
    virtual bool write(AxSxpParameterDb* db, AxFilename const& file, AxFilename const& parameterDir);
    /// "name_s_k_d_c_c_s_s_e.ope": the record's name and the eight fields of the type.
    virtual AxFilename generateFilename(AxString const& recordName, AxObjectType const& type);
    /// Writes one record with all its values; called alone it replaces the file at once.
    virtual bool writeParameterFile(AxFilename const& file, AxZedObjectParameters* record) const;

protected:
    virtual AxSxpParameterDbFileData* createParameterDbFileData();
    virtual bool writeTopLevelParameterDbFile(AxSxpParameterDbFileData const& data, AxFilename const& file) const;
    /// Called during `write` for everything just before it writes itself; does nothing here.
    virtual void processPrePutSelfCb(AxReaderWriter* rw, std::string& out);
    /// The name up to its last separator; null when that is its first character or there is none.
    virtual AxFilename getPath(AxFilename const& file);
    virtual void writeEntry(AxSxpParameterDbFileData* data, AxSxpParameterDbEntry* entry,
                            AxFilename const& parameterDir, AxFilename const& fileDir);
    /// Called around the writing of the database file with its text so far; do nothing here.
    virtual void preWrite(AxSxpParameterDbFileData const& data, AxFilename const& file, std::string& out);
    virtual void postWrite(AxSxpParameterDbFileData const& data, AxFilename const& file, std::string& out);
    virtual AxFilename generateOpeDirectory(AxFilename const& fileDir, AxFilename const& parameterDir);
    // ---- End of the virtual operations. ----

    /// Writes a file as part of the `write` that is running, else by itself. False after a warning.
    static bool writeText(AxFilename const& file, std::string const& text);
    /// During `write`, before the entry gets its new file, which will be in `directory`: the record takes along the
    /// variables that the new database file does not bind as the one did that it was read with, and files that it names
    /// relative to its own are named as they are found from there. Whether anything changed.
    static bool prepareRecord(AxSxpParameterDbEntry const& entry, AxFilename const& directory);
    /// What `write` installs; `context` is the writer.
    static void prePutSelfCb(AxReaderWriter* rw, std::string& out, void* context);

private:
    bool writeFiles(AxSxpParameterDb& db, AxFilename const& file, AxFilename const& parameterDir);
};
