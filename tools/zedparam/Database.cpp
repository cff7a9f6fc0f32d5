#include "Database.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <utility>

#include "AxDiagnostic.h"
#include "AxZedObjectParameters.h"
#include "Factories.h"
#include "Findings.h"
#include "Progress.h"
#include "ShownPath.h"
#include "Source.h"

namespace
{
/// The first line that holds more than blanks and comments, without the blanks in front; `number` tells which it is.
std::string firstLine(std::string const& file, unsigned& number)
{
    std::ifstream input(file);
    std::string line;
    for (number = 1; std::getline(input, line); ++number)
    {
        line.erase(0, line.find_first_not_of(" \t\r"));
        if (!line.empty() && line.front() != ';')
        {
            return line;
        }
    }
    return {};
}

/// False, after a finding, for a file that is plainly of another kind. What is wrong with a database its reader tells.
bool mayBeDatabase(std::string const& file)
{
    AxDiagnostic finding;
    std::string const line = firstLine(file, finding.line);
    std::string found;
    if (line.starts_with('<'))
    {
        found = "XML";
        finding.column = 1;
    }
    else if (line.starts_with('(') && !line.starts_with("(parameter-database"))
    {
        Source const source(file);
        if (source.expression().isPair() &&
            source.find([](AxlObj const& list) { return list.car()->text() == "parameter-files"; }) == nullptr)
        {
            found = "(" + std::string(source.expression().car()->text()) + " ...)";
            Source::setPlace(finding, &source.expression());
        }
    }
    if (!found.empty())
    {
        finding.severity = AxSeverity::Error;
        finding.code = "not-a-database";
        finding.file = file;
        finding.text = "expected (parameter-database ...), found " + found;
        AxDiagnostics::report(std::move(finding));
    }
    return found.empty();
}
} // namespace

std::unique_ptr<Database> Database::openNone()
{
    installedFactories();
    auto database = std::make_unique<Database>();
    return database->init() ? std::move(database) : nullptr;
}

std::unique_ptr<Database> Database::open(std::string const& file, std::unique_ptr<AxSxpParameterDbReader> reader)
{
    if (file.empty())
    {
        AxDiagnostics::report({.code = "cannot-open", .text = "expected the name of a database file, found \"\""});
        return nullptr;
    }
    std::unique_ptr<Database> database = openNone();
    if (database != nullptr && reader != nullptr)
    {
        database->setReader(reader.release());
    }
    if (database == nullptr || !mayBeDatabase(file) || !database->load(AxFilename(file)))
    {
        return nullptr;
    }
    database->myFile = file;
    database->myDirectory = std::filesystem::path(file).parent_path().string();
    if (database->myDirectory.empty())
    {
        database->myDirectory = ".";
    }
    return database;
}

std::unique_ptr<Database> Database::listing(std::filesystem::path const& file)
{
    Findings const silence(Findings::Print::Never);
    std::error_code ignored;
    std::filesystem::path const path = std::filesystem::weakly_canonical(file, ignored);
    std::filesystem::path const folder = path.parent_path();
    for (std::filesystem::path const& place : {folder, folder.parent_path()})
    {
        std::set<std::filesystem::path> candidates;
        for (std::filesystem::directory_entry const& entry : std::filesystem::directory_iterator(place, ignored))
        {
            if (entry.path().extension() == opdFilenameExtension().string())
            {
                candidates.insert(entry.path());
            }
        }
        for (std::filesystem::path const& candidate : candidates)
        {
            std::unique_ptr<Database> database = open(candidate.string());
            if (database != nullptr && !database->entriesOf(path).empty())
            {
                return database;
            }
        }
    }
    return nullptr;
}

std::vector<AxSxpParameterDbEntry*> Database::entries() const
{
    std::vector<AxSxpParameterDbEntry*> result;
    for (AxListItem const* item = parameterList().first(); item != nullptr; item = item->next())
    {
        auto* entry = static_cast<AxZedParameterDbEntry*>(item->data());
        if (auto* fileEntry = dynamic_cast<AxSxpParameterDbEntry*>(entry))
        {
            result.push_back(fileEntry);
        }
    }
    return result;
}

std::vector<AxSxpParameterDbEntry*> Database::entriesOf(std::filesystem::path const& file) const
{
    std::vector<AxSxpParameterDbEntry*> result = entries();
    std::erase_if(result,
                  [&file](AxSxpParameterDbEntry const* entry)
                  {
                      std::error_code ignored;
                      return std::filesystem::path(entry->filename().native()).filename() != file.filename() ||
                             !std::filesystem::equivalent(entry->foundFilename().native(), file, ignored);
                  });
    return result;
}

void Database::readRecords(std::string const& what) const
{
    std::vector<AxSxpParameterDbEntry*> const all = entries();
    Progress progress(what, all.size());
    for (AxSxpParameterDbEntry* entry : all)
    {
        getParameters(entry);
        progress.step();
    }
}

bool Database::withRecord(AxSxpParameterDbEntry& entry, std::function<void(AxZedObjectParameters&)> const& visit) const
{
    std::unique_ptr<AxZedObjectParameters> const record(getParameters(&entry));
    if (record != nullptr)
    {
        visit(*record);
        entry.setParameters(nullptr);
    }
    return record != nullptr;
}

bool Database::forEachRecord(
    std::string const& what,
    std::function<void(AxSxpParameterDbEntry&, AxZedObjectParameters&, Progress&)> const& visit) const
{
    std::vector<AxSxpParameterDbEntry*> const all = entries();
    Progress progress(what, all.size());
    bool isComplete = true;
    for (AxSxpParameterDbEntry* entry : all)
    {
        bool const isRead = withRecord(*entry, [&](AxZedObjectParameters& record) { visit(*entry, record, progress); });
        isComplete = isComplete && isRead;
        progress.step();
    }
    return isComplete;
}

bool Database::isPattern(AxZedParameterDbEntry const& entry)
{
    return entry.typeIsMatchType() || std::ranges::find(entry.objectType().fields(), AxObjectType::theWildcard) !=
                                          entry.objectType().fields().end();
}

std::string Database::foundFile(AxSxpParameterDbEntry const& entry)
{
    AxFilename const found = entry.foundFilename();
    return (found.isNull() ? entry.filename() : found).native();
}

std::string Database::fileOf(AxSxpParameterDbEntry const& entry)
{
    return shownPath(foundFile(entry));
}
