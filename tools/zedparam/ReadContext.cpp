#include "ReadContext.h"

#include <filesystem>
#include <set>

#include "Database.h"
#include "Findings.h"

namespace fs = std::filesystem;

ReadContext::ReadContext(std::string const& file, Database const& database)
{
    files.push_back(AxFilename(fs::absolute(file).parent_path().string()));
    for (auto const& set : database.variableBindings())
    {
        bindings.push_back(set.get());
    }
    if (!database.directory().empty())
    {
        std::string const directory = fs::absolute(database.directory()).lexically_normal().string();
        files.push_back(AxFilename(directory));
        ofDatabase.setString("opd-dir", AxString(directory));
        bindings.push_back(&ofDatabase);
    }
}

std::unique_ptr<Database> databaseFor(std::string const& file, std::string const& named)
{
    if (!named.empty())
    {
        return Database::open(named);
    }
    Findings muted(Findings::Print::Never);
    std::error_code ignored;
    fs::path const path = fs::weakly_canonical(file, ignored);
    fs::path const folder = path.parent_path();
    for (fs::path const& place : {folder, folder.parent_path()})
    {
        std::set<fs::path> candidates;
        for (fs::directory_entry const& entry : fs::directory_iterator(place, ignored))
        {
            if (entry.path().extension() == ".opd")
            {
                candidates.insert(entry.path());
            }
        }
        for (fs::path const& candidate : candidates)
        {
            std::unique_ptr<Database> database = Database::open(candidate.string());
            if (database != nullptr && !database->entriesOf(path).empty())
            {
                return database;
            }
        }
    }
    return Database::openNone();
}
