#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "Places.h"
#include "RecordWalk.h"

class AxSxpParameterDbEntry;
class Database;
class JsonWriter;

/// One value of a keyword in a database.
struct UsedValue
{
    double number = 0.0;
    AxSxpParameterDbEntry* entry = nullptr;
    std::size_t ordinal = 0; ///< in the walk through its record
    Place place{};           ///< told for those that are shown
};

/// How the records or components of one type use a keyword.
struct KeywordUse
{
    struct Text
    {
        std::size_t count = 0;
        UsedValue first{};
    };
    std::string unit;
    std::size_t defaults = 0; ///< how often nothing is given
    std::size_t given = 0;
    std::vector<UsedValue> numbers;  ///< given ones, ascending
    std::vector<UsedValue> outliers; ///< some of `numbers`, the farthest from the middle half first
    std::map<std::string, Text> texts;
    std::vector<std::pair<std::string, Text>> commonest; ///< of the texts

    double median() const;
};

/// By the type that has the keyword.
using KeywordUses = std::map<std::string, KeywordUse>;

/// Reads all records. What stands in a file that several records name counts once. `isComplete` tells whether every
/// record could be read.
KeywordUses usesOf(KeywordPath const& path, Database const& database, bool& isComplete);

void printUses(KeywordUses const& uses);
void writeUses(JsonWriter& json, KeywordUses const& uses);
