#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "AxObjectType.h"
#include "AxSxpParameterDbReader.h"
#include "Places.h"

class AxSxpParameterDbEntry;
class Database;

/// One entry as a database file or an entity file gave it.
struct ReadEntry
{
    AxObjectType type;
    bool isMatchType = false;
    std::string file;                       ///< of the record, as it is named
    Place place;                            ///< of the entry, or of the element of an entity file that it stands for
    AxSxpParameterDbEntry* entry = nullptr; ///< what became of it; may be gone

    /// Whether it stands in the file of its record.
    bool isElement() const { return place.file == file; }
};

/// Remembers the entries in the order in which they were read.
class EntryReader : public AxSxpParameterDbReader
{
public:
    explicit EntryReader(std::vector<ReadEntry>& entries) : myEntries(entries) {}
    bool loadParameterDb(AxFilename const& file, AxSxpParameterDb* db) override;

protected:
    void entryAddedFor(AxSxpParameterDbFileEntry* fileEntry, AxSxpParameterDbEntry* dbEntry) override;

private:
    std::vector<ReadEntry>& myEntries;
    std::string myFile;
};

/// How one entry of a database fared when a type was asked for.
struct Candidate
{
    AxSxpParameterDbEntry* entry = nullptr;
    ReadEntry const* read = nullptr;
    int rank = 0;          ///< among those that fit, 1 is the best; 0 for one that does not
    int field = 0;         ///< the first that rules it out
    bool isReached = true; ///< false behind the entry that ended the look-up
};

/// An entry that never answers, and the one that does in its place.
struct HiddenEntry
{
    ReadEntry const* read = nullptr;
    ReadEntry const* by = nullptr;
    bool isReplaced = false; ///< by a later one; else an exact entry keeps a match type out
};

/// All entries of a database in the order of the look-up.
std::vector<Candidate> candidatesFor(AxObjectType const& type, Database const& database,
                                     std::vector<ReadEntry> const& read);
/// The entries that never answer, because others of the same type do.
std::vector<HiddenEntry> hiddenEntries(std::vector<Candidate> const& candidates, std::vector<ReadEntry> const& read);

/// "super type", "kind" and so on.
char const* fieldName(int field);
