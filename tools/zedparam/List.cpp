#include "Commands.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include "Database.h"
#include "DatabaseCommand.h"
#include "Json.h"

namespace
{
char const* kindOf(AxSxpParameterDbEntry const& entry)
{
    return Database::isPattern(entry) ? "pattern" : "exact";
}

void printEntries(Database const& database)
{
    std::size_t width = 0;
    for (AxSxpParameterDbEntry const* entry : database.entries())
    {
        width = std::max(width, entry->objectType().string().length());
    }
    for (AxSxpParameterDbEntry const* entry : database.entries())
    {
        std::printf("%-*s  %-7s  %s\n", static_cast<int>(width), entry->objectType().string().c_str(), kindOf(*entry),
                    entry->filename().c_str());
    }
}

void printEntriesAsJson(Database const& database)
{
    JsonWriter json;
    json.beginArray();
    for (AxSxpParameterDbEntry const* entry : database.entries())
    {
        json.beginObject();
        json.member("type", entry->objectType().string().string());
        json.member("kind", kindOf(*entry));
        json.member("file", entry->filename().view());
        json.endObject();
    }
    json.endArray().print();
}

int listEntries(std::string const& file, bool asJson)
{
    return printDatabase(file, asJson ? printEntriesAsJson : printEntries);
}
} // namespace

void addListCommand(CommandLine& line)
{
    addDatabaseCommand(line, "list", "All entries: type, exact or pattern, record file.", listEntries);
}
