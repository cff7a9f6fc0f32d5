#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "AxSxpParameterDb.h"
#include "AxSxpParameterDbEntry.h"
#include "AxSxpParameterDbReader.h"

class Progress;

/// A parameter database as the commands use it.
class Database : public AxSxpParameterDb
{
public:
    /// Sets the library up and loads the database file, with another reader unless that is null; null, after findings,
    /// when that fails.
    static std::unique_ptr<Database> open(std::string const& file, std::unique_ptr<AxSxpParameterDbReader> reader = {});
    /// The library set up, and a database without entries.
    static std::unique_ptr<Database> openNone();

    /// The database in the file's folder, or in the one above, that lists the file; null when there is none. It is
    /// looked for in silence.
    static std::unique_ptr<Database> listing(std::filesystem::path const& file);

    std::vector<AxSxpParameterDbEntry*> entries() const;
    /// The entries whose record is in the file.
    std::vector<AxSxpParameterDbEntry*> entriesOf(std::filesystem::path const& file) const;
    /// Reads the record of each entry.
    void readRecords(std::string const& what) const;
    /// Shows `visit` the record of the entry, and lets go of it; false when it could not be read.
    bool withRecord(AxSxpParameterDbEntry& entry, std::function<void(AxZedObjectParameters&)> const& visit) const;
    /// Shows `visit` the record of each entry and lets go of it, so that one is held at a time; false when a record
    /// could not be read.
    bool
    forEachRecord(std::string const& what,
                  std::function<void(AxSxpParameterDbEntry&, AxZedObjectParameters&, Progress&)> const& visit) const;
    /// The record of one entry, read now if it was not yet; null after a finding.
    using AxSxpParameterDb::getParameters;

    std::string const& file() const { return myFile; }
    /// The directory of the database file.
    std::string const& directory() const { return myDirectory; }

    /// Whether the entry serves more than one type.
    static bool isPattern(AxZedParameterDbEntry const& entry);
    /// Where the entry's file is, else how it is named.
    static std::string foundFile(AxSxpParameterDbEntry const& entry);
    /// The same as it is shown.
    static std::string fileOf(AxSxpParameterDbEntry const& entry);

private:
    std::string myFile;
    std::string myDirectory;
};
