#include "ConvertWriters.h"

#include <algorithm>
#include <boost/make_shared.hpp>
#include <set>
#include <utility>

#include "AxDiagnostic.h"
#include "AxEnvXMLWriter.h"
#include "AxReadWholeFile.h"
#include "AxReaderWriterFile.h"
#include "AxRwVariableBindings.h"
#include "AxSinkScope.h"
#include "AxSxpParameterDbFileData.h"
#include "AxZedObjectParameters.h"
#include "AxZedXmlUtils.h"
#include "Database.h"
#include "RecordText.h"

namespace
{
namespace fs = std::filesystem;

constexpr char const* theDataRoot = "data-root";
constexpr char const* theExtension = ".entity";

std::string valueOfDataRoot(fs::path const& folder)
{
    return "$(opd-dir)/" + folder.filename().string();
}

/// The text of an entity file with the record alone; empty, with `fault` told, when XML cannot hold it.
std::string entityText(AxZedObjectParameters const& record, AxDiagnostic& fault)
{
    auto const env = boost::make_shared<AxEnvironment>();
    std::string text;
    AxSinkScope const noWarnings(AxWarn);
    AxDiagnostics::Sink previous = AxDiagnostics::setSink([&fault](AxDiagnostic const& finding) { fault = finding; });
    AxEnvValuePtr const element = AxZedXmlUtils::addObject(env, AxEnvValuePtr(), record);
    // Its further types are entries, which are written for themselves.
    if (AxEnvObjectPtr const types = env->getObject("additional-match-types", "objectTypes", element))
    {
        env->remove(types);
    }
    bool const isWritten = element && AxEnvXMLWriter().writeText(env, text);
    AxDiagnostics::setSink(std::move(previous));
    return isWritten ? text : std::string();
}

/// The tree that the records of one file share.
AxEnvironmentPtr treeOf(std::vector<AxSxpParameterDbEntry*> const& entries)
{
    auto const hasRecord = [](AxSxpParameterDbEntry const* entry) { return entry->parameters() != nullptr; };
    return (*std::ranges::find_if(entries, hasRecord))->parameters()->xmlEnvironment();
}
} // namespace

void takeTypesOfElement(AxZedObjectParameters& record)
{
    AxEnvironmentPtr const env = record.xmlEnvironment();
    record.setObjectType(AxZedXmlUtils::getObjectType(env, record.objectNode()));
    AxObjectType matchType;
    AxEnvObjectPtr const element = env->getObject("", "matchType", record.objectNode());
    AxString const* const text = element ? element->attribute("value") : nullptr;
    bool const isRead = text != nullptr && AxObjectType::fromString(text->string(), matchType);
    record.setMatchType(isRead ? matchType : AxObjectType());
}

bool replaceElement(AxZedObjectParameters const& record)
{
    AxEnvValuePtr const old = record.objectNode();
    auto const made = boost::make_shared<AxEnvironment>();
    AxEnvValuePtr const element = AxZedXmlUtils::addObject(made, AxEnvValuePtr(), record);
    AxEnvValuePtr const parent = old->parent();
    made->setRoot(AxEnvValuePtr());
    if (!parent)
    {
        record.xmlEnvironment()->setRoot(element);
        return element != nullptr;
    }
    AxEnvListPtr const siblings = parent->castToList();
    auto const place = std::ranges::find(siblings->children(), old) - siblings->children().begin();
    return siblings->insert(static_cast<std::size_t>(place), element) && siblings->remove(old);
}

bool TextWriter::writeParameterFile(AxFilename const& file, AxZedObjectParameters* record) const
{
    return writeText(file, recordText(*record));
}

EntityWriter::EntityWriter(Database const& database, fs::path const& target)
    : myTarget(target), myFolder(target.parent_path() / target.stem())
{
    for (AxSxpParameterDbEntry* entry : database.entries())
    {
        if (entry->isFromDataRoot())
        {
            myDataRoot = entry->path().native();
            std::string const place = fs::path(entry->filename().native()).lexically_relative(myDataRoot).string();
            myFiles[place].push_back(entry);
            myPlaces[entry] = place;
        }
    }
    for (AxSxpParameterDbEntry* entry : database.entries())
    {
        if (!entry->isFromDataRoot() && entry->parameters() != nullptr)
        {
            planFile(entry);
        }
    }
}

void EntityWriter::planFile(AxSxpParameterDbEntry* entry)
{
    std::string const stem = fs::path(entry->filename().native()).stem().string();
    std::string place = stem + theExtension;
    for (int i = 2; myFiles.contains(place); ++i)
    {
        place = stem + '-' + std::to_string(i) + theExtension;
    }
    myFiles[place].push_back(entry);
    myPlaces[entry] = place;
}

bool EntityWriter::isOwnDataRoot() const
{
    std::error_code ignored;
    return !myDataRoot.empty() && fs::equivalent(myDataRoot, myFolder, ignored);
}

bool EntityWriter::isConvertedBefore() const
{
    std::string text;
    int ignored = 0;
    return axReadWholeFile(AxFilename(myTarget.string()), text, ignored) &&
           text.find('(' + std::string(theDataRoot) + " \"" + valueOfDataRoot(myFolder) + "\")") != std::string::npos;
}

fs::path EntityWriter::foreignFile() const
{
    std::error_code ignored;
    if (!fs::is_directory(myFolder, ignored) || isOwnDataRoot())
    {
        return {};
    }
    bool const mayReplace = isConvertedBefore();
    for (AxFilename const& file : AxReaderWriterFile::findFilesByExtension(AxFilename(myFolder.string()), theExtension))
    {
        if (!mayReplace || !myFiles.contains(fs::path(file.native()).lexically_relative(myFolder).string()))
        {
            return file.native();
        }
    }
    return {};
}

AxSxpParameterDbFileData* EntityWriter::createParameterDbFileData()
{
    AxSxpParameterDbFileData* const data = AxSxpParameterDbWriter::createParameterDbFileData();
    data->variableBindings().setString(theDataRoot, AxString(valueOfDataRoot(myFolder)));
    return data;
}

void EntityWriter::writeEntry(AxSxpParameterDbFileData* data, AxSxpParameterDbEntry* entry,
                              AxFilename const& parameterDir, AxFilename const& fileDir)
{
    auto const place = myPlaces.find(entry);
    if (place != myPlaces.end() && entry->isFromDataRoot())
    {
        Entries const& entries = myFiles.at(place->second);
        if (entries.front() == entry)
        {
            copyFile(place->second, entries);
        }
        return;
    }
    if (place == myPlaces.end() || !writeRecord(*entry, place->second))
    {
        AxSxpParameterDbWriter::writeEntry(data, entry, parameterDir, fileDir);
    }
}

void EntityWriter::copyFile(std::string const& place, Entries const& entries) const
{
    fs::path const target = myFolder / place;
    std::set<AxEnvValuePtr> changed;
    for (AxSxpParameterDbEntry const* entry : entries)
    {
        AxZedObjectParameters* const record = entry->parameters();
        if (prepareRecord(*entry, AxFilename(target.parent_path().string())) &&
            changed.insert(record->objectNode()).second)
        {
            takeTypesOfElement(*record);
            replaceElement(*record);
        }
    }
    if (changed.empty() && isOwnDataRoot())
    {
        return;
    }
    std::string text;
    int error = 0;
    AxFilename const& source = entries.front()->filename();
    bool const isRead =
        changed.empty() ? axReadWholeFile(source, text, error) : AxEnvXMLWriter().writeText(treeOf(entries), text);
    std::error_code ignored;
    fs::create_directories(target.parent_path(), ignored);
    if (isRead)
    {
        writeText(AxFilename(target.string()), text);
    }
}

bool EntityWriter::writeRecord(AxSxpParameterDbEntry const& entry, std::string const& place) const
{
    prepareRecord(entry, AxFilename(myFolder.string()));
    AxDiagnostic fault;
    std::string const text = entityText(*entry.parameters(), fault);
    if (text.empty())
    {
        fault.file = Database::fileOf(entry);
        fault.line = 0;
        fault.code = "stays-text";
        fault.text = "XML cannot hold the record, which stays a parameter file: " + fault.text;
        AxDiagnostics::report(std::move(fault));
        return false;
    }
    writeText(AxFilename((myFolder / place).string()), text);
    return true;
}
