#include "Tables.h"

#include <algorithm>
#include <string>

#include "AxAmmoSelectTable.h"
#include "AxDmgSurfaceTable.h"
#include "AxFormation.h"
#include "AxRangeProbabilityTable.h"
#include "AxReaderWriterFile.h"
#include "AxSourceScope.h"
#include "Database.h"
#include "Findings.h"
#include "Progress.h"
#include "RowCheck.h"

namespace fs = std::filesystem;

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

std::size_t checkTables(std::vector<fs::path> const& files, Findings& findings)
{
    std::size_t loaded = 0;
    Progress progress("checking tables", files.size());
    for (fs::path const& file : files)
    {
        if (file.extension() == ".hit" || file.extension() == ".det")
        {
            AxRangeProbabilityTable table("table", nullptr);
            loaded += loadTable(file.string(), table);
            checkRows(file.string(), findings);
        }
        else if (file.extension() == ".asl")
        {
            AxAmmoSelectTable table("table", nullptr);
            loaded += loadTable(file.string(), table);
        }
        else if (file.extension() == ".frm")
        {
            AxFormation table("table", nullptr);
            loaded += loadTable(file.string(), table);
        }
        else if (file.extension() == ".dmg")
        {
            AxDmgSurfaceTable table("table", nullptr);
            loaded += loadTable(file.string(), table);
            checkRows(file.string(), findings);
        }
        progress.step();
    }
    return loaded;
}
