#include "UnusedFiles.h"

#include <algorithm>
#include <set>
#include <system_error>
#include <unordered_map>
#include <unordered_set>
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

/// The same for many files of few directories.
class WholePaths
{
public:
    fs::path operator()(fs::path const& file)
    {
        std::error_code ignored;
        if (fs::is_symlink(fs::symlink_status(file, ignored)))
        {
            return wholePath(file);
        }
        auto const [directory, isNew] = myDirectories.try_emplace(file.parent_path().native());
        directory->second = isNew ? wholePath(file.parent_path()) : std::move(directory->second);
        return directory->second / file.filename();
    }

private:
    std::unordered_map<std::string, fs::path> myDirectories;
};

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
        WholePaths whole;
        files.forEachNamed([&](std::string const& file) { myUsed.insert(whole(file).native()); });
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
        std::set<std::pair<std::string, std::string>> kinds;
        for (std::string const& file : myUsed)
        {
            std::size_t const name = file.rfind('/') + 1;
            std::size_t const dot = file.rfind('.');
            if (name != 0 && dot != std::string::npos && dot > name)
            {
                kinds.emplace(file.substr(0, name), file.substr(dot));
            }
        }
        for (auto const& [directory, extension] : kinds)
        {
            fs::path const below = fs::path(directory).lexically_relative(myDirectory);
            if (below.empty() || *below.begin() == "..")
            {
                continue;
            }
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

    /// Files that are named and cannot be opened.
    void drop(std::vector<fs::path> const& unopened)
    {
        for (fs::path const& file : unopened)
        {
            std::error_code ignored;
            myUnused.erase(wholePath(fs::absolute(file, ignored).parent_path()) / file.filename());
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
        if (!myUsed.contains(file.native()))
        {
            myUnused.insert(file);
        }
    }

    fs::path myDirectory;
    std::unordered_set<std::string> myUsed;
    std::set<fs::path> myUnused;
};
} // namespace

void checkUnusedFiles(std::string const& databaseFile, Database const& database, std::vector<fs::path> const& tables,
                      std::vector<fs::path> const& unopened, CheckedFiles const& files, Findings& findings)
{
    UnusedFiles unused(databaseFile, files);
    if (!database.entries().empty() && !unused.hasOtherDatabases(databaseFile))
    {
        unused.addTables(tables);
        unused.addNeighbours();
    }
    unused.drop(unopened);
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
