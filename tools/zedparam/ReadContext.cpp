#include "ReadContext.h"

#include <filesystem>
#include <utility>

#include "Database.h"

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
    std::unique_ptr<Database> listing = Database::listing(file);
    return listing != nullptr ? std::move(listing) : Database::openNone();
}
