#include "ConvertDatabase.h"

#include <cstdio>
#include <filesystem>
#include <memory>

#include "AxZedObjectParameters.h"
#include "Commands.h"
#include "ConvertWriters.h"
#include "Database.h"
#include "Findings.h"
#include "ShownPath.h"

namespace
{
namespace fs = std::filesystem;

/// Null after a line that says why there is none.
std::unique_ptr<TextWriter> newWriter(Database const& database, fs::path const& target, bool toEntities)
{
    if (!toEntities)
    {
        return std::make_unique<TextWriter>();
    }
    auto writer = std::make_unique<EntityWriter>(database, fs::absolute(target).lexically_normal());
    fs::path const foreign = writer->foreignFile();
    if (foreign.empty())
    {
        return writer;
    }
    std::fprintf(stderr,
                 "zedparam: cannot convert to \"%s\"; its folder holds \"%s\", which is not of this conversion: move "
                 "that away first\n",
                 target.c_str(), shownPath(foreign.string()).c_str());
    return nullptr;
}
} // namespace

int convertDatabase(std::string const& from, std::string const& to, bool toEntities)
{
    if (!to.ends_with(AxSxpParameterDb::opdFilenameExtension().string()))
    {
        std::fprintf(stderr, "zedparam: cannot convert to \"%s\"; expected a name that ends in \"%s\"\n", to.c_str(),
                     AxSxpParameterDb::opdFilenameExtension().c_str());
        return CouldNotRun;
    }
    Findings findings(Findings::Print::AtOnce);
    std::unique_ptr<Database> const database = Database::open(from);
    if (database == nullptr)
    {
        return CouldNotRun;
    }
    if (fs::weakly_canonical(fs::absolute(to).parent_path()) != fs::weakly_canonical(database->directory()))
    {
        std::fprintf(stderr,
                     "zedparam: cannot convert to \"%s\"; expected a name in the database's own directory, \"%s\", "
                     "because its records name files beside it (\"save\" copies a database elsewhere)\n",
                     to.c_str(), database->directory().c_str());
        return CouldNotRun;
    }
    database->readRecords("reading records");
    std::unique_ptr<TextWriter> writer = newWriter(*database, to, toEntities);
    if (writer == nullptr)
    {
        return CouldNotRun;
    }
    std::size_t records = 0;
    for (AxSxpParameterDbEntry const* entry : database->entries())
    {
        records += entry->parameters() != nullptr;
    }
    database->setWriter(writer.release());
    if (!database->save(AxFilename(to)))
    {
        return CouldNotRun;
    }
    std::printf("converted %zu of %zu records to %s\n", records, database->entries().size(), to.c_str());
    return findings.empty() ? Fine : HasFindings;
}
