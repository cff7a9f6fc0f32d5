#include "UnusedFiles.h"

#include <algorithm>
#include <set>
#include <system_error>
#include <utility>

#include "AxDiagnostic.h"
#include "AxSxpParameterDb.h"
#include "CheckedFiles.h"
#include "Database.h"
#include "Findings.h"

namespace
{
namespace fs = std::filesystem;

fs::path wholePath(fs::path const& file)
{
    std::error_code ignored;
    return fs::weakly_canonical(file, ignored);
}

bool hasExtension(fs::path const& file, AxString const& extension)
{
    return file.extension().string() == extension.string();
}

class UnusedFiles
{
public:
    UnusedFiles(fs::path const& databaseFile, CheckedFiles const& files)
        : myDirectory(wholePath(fs::absolute(databaseFile).parent_path()))
    {
        files.forEachNamed([this](std::string const& file) { myUsed.insert(wholePath(file)); });
        addRecords(myDirectory / databaseFile.stem());
    }

    void addTables(std::vector<fs::path> const& tables)
    {
        for (fs::path const& table : tables)
        {
            add(wholePath(table));
        }
    }

    /// What stands beside a file that is used and ends as it does, below the database's directory.
    void addNeighbours()
    {
        std::set<std::pair<fs::path, fs::path>> kinds;
        for (fs::path const& file : myUsed)
        {
            fs::path const below = file.lexically_relative(myDirectory);
            if (!below.empty() && *below.begin() != ".." && file.has_extension())
            {
                kinds.emplace(file.parent_path(), file.extension());
            }
        }
        for (auto const& [directory, extension] : kinds)
        {
            std::error_code ignored;
            for (fs::directory_entry const& file : fs::directory_iterator(directory, ignored))
            {
                if (file.path().extension() == extension && file.is_regular_file(ignored))
                {
                    add(file.path());
                }
            }
        }
    }

    bool hasOtherDatabases(fs::path const& databaseFile) const
    {
        std::error_code ignored;
        fs::directory_iterator const files(myDirectory, ignored);
        return std::any_of(begin(files), end(files),
                           [&](fs::directory_entry const& file)
                           {
                               return hasExtension(file.path(), AxSxpParameterDb::opdFilenameExtension()) &&
                                      file.path().filename() != databaseFile.filename();
                           });
    }

    std::set<fs::path> const& found() const { return myUnused; }

private:
    void addRecords(fs::path const& directory)
    {
        std::error_code ignored;
        fs::recursive_directory_iterator file(directory, ignored);
        for (; !ignored && file != fs::recursive_directory_iterator(); file.increment(ignored))
        {
            if (hasExtension(file->path(), AxSxpParameterDb::opeFilenameExtension()))
            {
                add(file->path());
            }
        }
    }

    void add(fs::path const& file)
    {
        if (!myUsed.contains(file))
        {
            myUnused.insert(file);
        }
    }

    fs::path myDirectory;
    std::set<fs::path> myUsed;
    std::set<fs::path> myUnused;
};
} // namespace

void checkUnusedFiles(std::string const& databaseFile, Database const& database, std::vector<fs::path> const& tables,
                      CheckedFiles const& files, Findings& findings)
{
    UnusedFiles unused(databaseFile, files);
    if (!database.entries().empty() && !unused.hasOtherDatabases(databaseFile))
    {
        unused.addTables(tables);
        unused.addNeighbours();
    }
    for (fs::path const& file : unused.found())
    {
        AxDiagnostic finding;
        finding.severity = AxSeverity::Warning;
        finding.code = "unused-file";
        finding.file = file.string();
        finding.text = "nothing in the database names the file";
        findings.add(std::move(finding));
    }
}
