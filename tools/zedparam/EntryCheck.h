#pragma once

#include <string>
#include <vector>

#include "AxObjectType.h"
#include "AxSxpParameterDbReader.h"

class Findings;

/// Reads a database and notes each entry as it stood in its file, for the database itself keeps one of each type.
class EntryCheck : public AxSxpParameterDbReader
{
public:
    struct Entry
    {
        AxObjectType type;
        bool isMatchType;
        std::string file; ///< of an entity, else empty
        unsigned line;
        unsigned column;
    };

    /// `entries` must live as long as the reader.
    EntryCheck(std::vector<Entry>& entries) : myEntries(entries) {}
    ~EntryCheck() override;

    /// Reports entries of equal types and such as can never answer. `database` is the file that lists them.
    static void check(std::string const& database, std::vector<Entry> entries, Findings& findings);

protected:
    void entryAddedFor(AxSxpParameterDbFileEntry* fileEntry, AxSxpParameterDbEntry* dbEntry) override;

private:
    std::vector<Entry>& myEntries;
};
