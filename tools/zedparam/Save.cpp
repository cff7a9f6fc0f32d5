#include "Commands.h"

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

#include "AxReaderWriterFile.h"
#include "AxRecursiveReaderWriterIterator.h"
#include "AxZedObjectParameters.h"
#include "CommandLine.h"
#include "Database.h"
#include "Findings.h"
#include "Tables.h"

namespace
{
namespace fs = std::filesystem;

/// The files that a database in another directory needs beside it, at the places they have here.
class Companions
{
public:
    Companions(fs::path const& from, fs::path const& to) : myFrom(fs::weakly_canonical(from)), myTo(to) {}

    /// False for a file that does not lie below the database's directory.
    bool add(Database& database, fs::path const& file) const
    {
        fs::path const source = fs::weakly_canonical(file);
        fs::path const relative = source.lexically_relative(myFrom);
        if (relative.empty() || *relative.begin() == "..")
        {
            return false;
        }
        database.addDependentParameterFileToCopyPair(AxFilename(source.string()),
                                                     AxFilename((myTo / relative).string()));
        return true;
    }

private:
    fs::path myFrom;
    fs::path myTo;
};

void addCompanions(Database& database, fs::path const& directory, Findings& findings)
{
    Companions const companions(database.directory(), directory);
    for (fs::path const& table : tableFiles(database))
    {
        companions.add(database, table);
    }
    for (AxSxpParameterDbEntry* entry : database.entries())
    {
        if (entry->parameters() == nullptr)
        {
            continue;
        }
        AxRecursiveReaderWriterIterator all(*entry->parameters()->registry());
        for (AxReaderWriter const* rw = all.first(); rw != nullptr; rw = all.next())
        {
            auto const* file = dynamic_cast<AxReaderWriterFile const*>(rw);
            if (file == nullptr || file->foundFilename().isNull())
            {
                continue;
            }
            if (!companions.add(database, file->foundFilename().native()) && file->filename().isRelative())
            {
                AxDiagnostic finding;
                finding.severity = AxSeverity::Warning;
                finding.code = "not-copied";
                finding.file = Database::fileOf(*entry);
                finding.text = "\"" + file->filename().string().string() +
                               "\" lies outside the database's directory and is not copied";
                findings.add(std::move(finding));
            }
        }
    }
    database.addUnloadedFilesToCopyPairs(AxFilename(directory.string()));
}

int save(std::string const& from, std::string const& to)
{
    if (!to.ends_with(AxSxpParameterDb::opdFilenameExtension().string()))
    {
        std::fprintf(stderr, "zedparam: cannot save to \"%s\"; expected a name that ends in \"%s\"\n", to.c_str(),
                     AxSxpParameterDb::opdFilenameExtension().c_str());
        return CouldNotRun;
    }
    Findings findings(Findings::Print::AtOnce);
    std::unique_ptr<Database> const database = Database::open(from);
    if (database == nullptr)
    {
        return CouldNotRun;
    }
    database->readRecords("reading records");
    fs::path const directory = fs::absolute(to).lexically_normal().parent_path();
    std::error_code fault;
    fs::create_directories(directory, fault);
    if (fault)
    {
        std::fprintf(stderr, "zedparam: cannot save to \"%s\": %s\n", to.c_str(), fault.message().c_str());
        return CouldNotRun;
    }
    if (fs::weakly_canonical(directory) != fs::weakly_canonical(database->directory()))
    {
        addCompanions(*database, directory, findings);
    }
    if (!database->save(AxFilename(to)))
    {
        return CouldNotRun;
    }
    std::size_t records = 0;
    for (AxSxpParameterDbEntry const* entry : database->entries())
    {
        fs::path const target = directory / entry->filename().native();
        records += entry->parameters() != nullptr && !findings.has("cannot-write", target.string());
    }
    std::printf("saved %zu of %zu records to %s\n", records, database->entries().size(), to.c_str());
    return findings.empty() ? Fine : HasFindings;
}
} // namespace

void addSaveCommand(CommandLine& line)
{
    struct Options
    {
        std::string database;
        std::string target;
    };
    auto const options = std::make_shared<Options>();
    line.add("save", "Reads all records and writes the database anew, with the files that it refers to.",
             [options] { return save(options->database, options->target); })
        .required("DB", options->database, "The database file (.opd)")
        .required("NEW", options->target, "The database file to write (.opd)");
}
