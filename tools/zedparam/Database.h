#pragma once

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "AxSxpParameterDb.h"
#include "AxSxpParameterDbEntry.h"

/// A parameter database as the commands use it.
class Database : public AxSxpParameterDb
{
public:
    /// Sets the library up and loads the database file; null, after findings, when that fails.
    static std::unique_ptr<Database> open(std::string const& file);
    /// The library set up, and a database without entries.
    static std::unique_ptr<Database> openNone();

    std::vector<AxSxpParameterDbEntry*> entries() const;
    /// The entries whose record is in the file.
    std::vector<AxSxpParameterDbEntry*> entriesOf(std::filesystem::path const& file) const;
    /// Reads the record of each entry.
    void readRecords(std::string const& what) const;
    /// The record of one entry, read now if it was not yet; null after a finding.
    using AxSxpParameterDb::getParameters;

    /// The directory of the database file.
    std::string const& directory() const { return myDirectory; }

    /// Whether the entry serves more than one type.
    static bool isPattern(AxZedParameterDbEntry const& entry);
    /// Where the entry's file is, else how it is named.
    static std::string fileOf(AxSxpParameterDbEntry const& entry);

private:
    std::string myDirectory;
};
