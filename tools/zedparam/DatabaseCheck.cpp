#include "DatabaseCheck.h"

#include <algorithm>
#include <ctime>
#include <filesystem>
#include <memory>
#include <utility>
#include <vector>

#include "AxRwVariableBindings.h"
#include "AxSourceScope.h"
#include "AxZedObjectParameters.h"
#include "CheckedFiles.h"
#include "Database.h"
#include "EntryCheck.h"
#include "FindingPlaces.h"
#include "Findings.h"
#include "Progress.h"
#include "RecordCheck.h"
#include "Tables.h"
#include "UnusedFiles.h"

namespace
{
/// The variables that a database binds and that nothing has used so far.
class DatabaseVariables
{
public:
    explicit DatabaseVariables(Database const& database)
    {
        for (AxSxpParameterDb::VariableBindingsPtr const& bindings : database.variableBindings())
        {
            for (AxSymbolString const name : bindings->names())
            {
                if (name != "data-root") // which the reader itself uses
                {
                    myUnused.insert(name.string().string());
                }
            }
        }
    }

    bool empty() const { return myUnused.empty(); }

    void drop(CheckedFiles::Names const& used)
    {
        std::erase_if(myUnused, [&used](std::string const& name) { return used.contains(name); });
    }

    void report(std::string const& file, CheckedFiles& files, Findings& findings) const
    {
        for (std::string const& name : myUnused)
        {
            AxDiagnostic finding;
            finding.severity = AxSeverity::Warning;
            finding.code = "unused-variable";
            finding.file = file;
            finding.text = "nothing uses the variable \"" + name + '"';
            Source::setPlace(finding, bindingIn(files.source(file), name));
            findings.add(std::move(finding));
        }
    }

private:
    CheckedFiles::Names myUnused;
};

/// Checks the records one by one and lets each go, so that memory does not grow with their number.
class DatabaseCheck
{
public:
    DatabaseCheck(std::string file, Database& database, Findings& findings)
        : myFile(std::move(file)), myDatabase(database), myFindings(findings), myVariables(database)
    {
        myVariables.drop(myFiles.referencesOnce(myFile));
    }

    Checked run()
    {
        std::vector<AxSxpParameterDbEntry*> const entries = myDatabase.entries();
        Checked checked{.entries = entries.size()};
        Progress progress("checking records", entries.size());
        for (AxSxpParameterDbEntry* entry : entries)
        {
            checked.secondsReading += checkEntry(*entry);
            progress.step();
        }
        std::vector<std::filesystem::path> const tables = tableFiles(myDatabase);
        checked.tables = checkTables(tables, myFiles, myFindings);
        checkUnusedFiles(myFile, myDatabase, tables, myUnopened, myFiles, myFindings);
        myFiles.forEachNamed(
            [this](std::string const& named)
            {
                if (!myVariables.empty())
                {
                    myVariables.drop(myFiles.referencesOnce(named));
                }
            });
        myVariables.report(myFile, myFiles, myFindings);
        return checked;
    }

private:
    /// Answers how long it took to read the record.
    double checkEntry(AxSxpParameterDbEntry& entry)
    {
        AxFilename const found = entry.foundFilename();
        AxSourceScope const scope(found); // of what is told without a file
        double const begin = processorSeconds();
        std::unique_ptr<AxZedObjectParameters> const record(myDatabase.getParameters(&entry));
        double const seconds = processorSeconds() - begin;
        entry.setParameters(nullptr);
        std::string const file = found.native();
        if (!file.empty())
        {
            myFiles.enter(file);
        }
        else if (!entry.filename().isNull())
        {
            myUnopened.push_back(std::filesystem::path(myFile).parent_path() / entry.filename().native());
        }
        if (record != nullptr)
        {
            checkRecord(file, *record, Variables::AllKnown, myFiles, myFindings);
        }
        if (record != nullptr && !myVariables.empty())
        {
            myVariables.drop(myFiles.referencesOnce(file));
        }
        return seconds;
    }

    std::string myFile;
    Database& myDatabase;
    Findings& myFindings;
    std::vector<std::filesystem::path> myUnopened; // files of entries
    CheckedFiles myFiles;
    DatabaseVariables myVariables;
};
} // namespace

double processorSeconds()
{
    timespec time{};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

Checked checkDatabase(std::string const& file, Findings& findings)
{
    std::vector<ReadEntry> read;
    std::unique_ptr<Database> const database = Database::open(file, std::make_unique<EntryReader>(read));
    if (database == nullptr)
    {
        return {};
    }
    checkEntries(std::move(read), findings);
    return DatabaseCheck(file, *database, findings).run();
}
