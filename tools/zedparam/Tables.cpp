#include "Tables.h"

#include <algorithm>
#include <string>

#include "AxAmmoSelectTable.h"
#include "AxDmgSurfaceTable.h"
#include "AxFormation.h"
#include "AxRangeProbabilityTable.h"
#include "AxReaderWriterFile.h"
#include "AxSourceScope.h"
#include "CheckedFiles.h"
#include "Database.h"
#include "Progress.h"
#include "RecordCheck.h"
#include "Source.h"

namespace fs = std::filesystem;

std::unique_ptr<AxReaderWriter> newTable(fs::path const& file)
{
    std::string const extension = file.extension().string();
    if (extension == ".hit" || extension == ".det")
    {
        return std::make_unique<AxRangeProbabilityTable>("table", nullptr);
    }
    if (extension == ".asl")
    {
        return std::make_unique<AxAmmoSelectTable>("table", nullptr);
    }
    if (extension == ".frm")
    {
        return std::make_unique<AxFormation>("table", nullptr);
    }
    if (extension == ".dmg")
    {
        return std::make_unique<AxDmgSurfaceTable>("table", nullptr);
    }
    return nullptr;
}

bool loadTable(std::string const& path, AxReaderWriter& table)
{
    AxReaderWriterFile file("table-file", nullptr);
    file.setContent(&table);
    file.setFilename(AxFilename(path));
    AxSourceScope const scope(file.filename());
    return file.load({}, {});
}

std::vector<fs::path> tableFiles(Database const& database)
{
    std::vector<fs::path> result;
    for (auto const& [extension, directory] : AxSxpParameterDb::extensionToPathMap())
    {
        std::error_code ignored;
        fs::path const folder = fs::path(database.directory()) / directory.native();
        std::string const suffix = "." + extension.string();
        for (fs::directory_entry const& file : fs::directory_iterator(folder, ignored))
        {
            if (file.path().extension() == suffix) // a folder or a dangling link is told when it is read
            {
                result.push_back(file.path().lexically_normal());
            }
        }
    }
    std::ranges::sort(result);
    return result;
}

bool checkTable(fs::path const& path, CheckedFiles& files, Findings& findings)
{
    std::unique_ptr<AxReaderWriter> const table = newTable(path);
    bool const isLoaded = loadTable(path.string(), *table);
    if (isLoaded || Source(path.string()).isRead())
    {
        checkContent(path.string(), *table, files, findings);
    }
    return isLoaded;
}

std::size_t checkTables(std::vector<fs::path> const& tables, CheckedFiles& files, Findings& findings)
{
    std::size_t loaded = 0;
    Progress progress("checking tables", tables.size());
    for (fs::path const& table : tables)
    {
        loaded += newTable(table) != nullptr && checkTable(table, files, findings);
        progress.step();
    }
    return loaded;
}
