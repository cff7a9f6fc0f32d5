#include "Tables.h"

#include <algorithm>
#include <string>
#include <utility>

#include "AxAmmoSelectTable.h"
#include "AxDetectionPrbRangeLookupEntry.h"
#include "AxFormationTable.h"
#include "AxNumberText.h"
#include "AxRangeProbabilityTable.h"
#include "AxReaderWriterFile.h"
#include "AxSourceScope.h"
#include "Database.h"
#include "Findings.h"
#include "Progress.h"
#include "Source.h"

namespace
{
namespace fs = std::filesystem;

/// False, after findings, when the file cannot be read.
bool load(fs::path const& path, AxReaderWriter& table)
{
    AxReaderWriterFile file("table-file", nullptr);
    file.setContent(&table);
    file.setFilename(AxFilename(path.string()));
    AxSourceScope const scope(file.filename());
    return file.load({}, {});
}

void checkRow(std::string const& path, AxPrbRangeTableEntry const& row, Findings& findings)
{
    for (AxRwReal const* outcome : row)
    {
        if (!(outcome->value() >= 0.0 && outcome->value() <= 1.0))
        {
            AxDiagnostic finding;
            finding.severity = AxSeverity::Warning;
            finding.code = "out-of-range";
            finding.file = path;
            finding.text = "probability of \"" + outcome->name().string().string() + "\" at ";
            axAppendReal(finding.text, row.range());
            finding.text += " m is ";
            axAppendReal(finding.text, outcome->value());
            finding.text += ", expected 0 to 1";
            Source::setPlace(finding, Source(path).probability(row.range(), outcome->name().view(), outcome->value()));
            findings.add(std::move(finding));
        }
    }
}

void checkRows(std::string const& path, AxRangeProbabilityTable const& table, Findings& findings)
{
    for (AxListItem const* item = table.first(); item != nullptr; item = item->next())
    {
        auto const* entry = dynamic_cast<AxDetectionPrbRangeLookupEntry const*>(AxRwList::element(item));
        if (entry == nullptr)
        {
            continue;
        }
        AxPrbRangeList const& rows = entry->determinant().rangeList();
        for (AxListItem const* row = rows.first(); row != nullptr; row = row->next())
        {
            checkRow(path, *AxPrbRangeList::row(row), findings);
        }
    }
}
} // namespace

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
            loaded += load(file, table);
            checkRows(file.string(), table, findings);
        }
        else if (file.extension() == ".asl")
        {
            AxAmmoSelectTable table("table", nullptr);
            loaded += load(file, table);
        }
        else if (file.extension() == ".frm")
        {
            AxFormationTable table("table", nullptr);
            loaded += load(file, table);
        }
        progress.step();
    }
    return loaded;
}
