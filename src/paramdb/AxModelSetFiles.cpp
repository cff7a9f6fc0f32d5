#include "AxGuarded.h"
#include "AxModelSetLoading.h"
#include "AxObjectElement.h"
#include "AxParameterDbFiles.h"
#include "AxReadWholeFile.h"
#include "AxReplaceFile.h"
#include "AxSimulationObjectGroupModelSetEntry.h"
#include "AxStreams.h"
#include "AxTextReader.h"
#include "AxZedXmlUtils.h"
#include "AxlFunctions.h"
#include "AxlSyntaxError.h"

#include <algorithm>
#include <boost/filesystem/operations.hpp>
#include <boost/lexical_cast/try_lexical_convert.hpp>
#include <cstring>
#include <exception>

namespace
{
namespace fs = boost::filesystem;

/// The regular files of that extension in a directory, sorted by name, or the one that is named itself. False, after a
/// report, for what is neither.
bool filesIn(AxFilename const& directory, char const* extension, std::vector<AxFilename>& files)
{
    boost::system::error_code error;
    if (fs::is_regular_file(directory.native(), error))
    {
        if (fs::path(directory.native()).extension() == extension)
        {
            files.push_back(directory);
        }
        return true;
    }
    fs::directory_iterator walk(directory.native(), error);
    for (fs::directory_iterator const end; !error && walk != end; walk.increment(error))
    {
        boost::system::error_code unknown;
        if (walk->path().extension() == extension && fs::is_regular_file(walk->path(), unknown))
        {
            files.push_back(directory.combine(AxFilename(walk->path().filename().string())));
        }
    }
    if (error)
    {
        AxDiagnostics::report(
            axFault("unreadable-directory", directory, "cannot be read as a directory: " + error.message()));
        return false;
    }
    std::sort(files.begin(), files.end());
    return true;
}

bool failedToParse(AxDiagnostic fault, AxFilename const& file)
{
    AxDiagnostics::reportStated(std::move(fault), axFormat("Error parsing %s\n", file.native().c_str()));
    return false;
}

bool parse(AxReaderWriter& rw, std::string const& text, AxFilename const& file)
{
    AxSourceScope const scope(file);
    try
    {
        AxlInputStream stream(text);
        std::uint32_t line = 1;
        std::uint32_t column = 1;
        bool const isEmpty = !axTextFollows(stream, line, column);
        if (isEmpty || stream.peekc() != '(')
        {
            std::string const found = isEmpty ? "the end of the text" : "other text";
            return failedToParse(
                axFaultAt("not-a-list", line, column, "expected a list (name item...), found " + found), file);
        }
        std::string const lineForCutOff = axFormat("Error parsing %s\n", file.native().c_str());
        AxTextReader reader(stream);
        reader.setLineForCutOff(lineForCutOff);
        reader.read(rw, {file.directory()}, AxReaderWriter::nullVariableReference());
        return !reader.unclosed();
    }
    catch (AxlSyntaxError const& error)
    {
        return failedToParse(error.diagnostic(), file);
    }
    catch (...)
    {
        return failedToParse(axFault("read-failed", file, axReason()), file);
    }
}

/// An object that only serves patterns is no fault.
void reportNoType(AxEnvironmentPtr const& env, AxEnvValuePtr const& element)
{
    std::string const text =
        "object \"" + element->castToObject()->name().string() + "\" has no object type and is left out of the models";
    std::vector<AxObjectType> patterns;
    AxZedXmlUtils::getMatchTypes(env, element, patterns);
    if (patterns.empty())
    {
        AxDiagnostics::report(
            axFaultAt("no-object-type", element->line(), element->column(), text, AxSeverity::Warning));
        return;
    }
    AxInfo << AxSourceScope::currentFile().native() << ": " << text << AxEndl;
}
} // namespace

AxModelSet::Loading::Loading(AxModelSet& models) : myModels(models)
{
    models.myIndexedChange = models.changeCount() - 1;
    models.refreshIndex();
    models.myLoading = this;
    for (AxModelSetEntry const* entry : models)
    {
        add(entry->uniqueId());
    }
}

void AxModelSet::Loading::replace(AxString const& id, AxString const& other)
{
    add(other);
    if (--myIds[id] > 0)
    {
        return;
    }
    myIds.erase(id);
    release(id, 0);
    std::string const& text = id.string();
    std::size_t const dash = text.rfind('-');
    int number = 0;
    if (dash != std::string::npos && boost::conversion::try_lexical_convert(text.substr(dash + 1), number))
    {
        release(AxString(text.substr(0, dash)), number);
    }
}

void AxModelSet::Loading::release(AxString const& base, int number)
{
    auto const known = myNumbers.find(base);
    if (known != myNumbers.end())
    {
        known->second = std::min(known->second, std::max(number, 0));
    }
}

bool AxModelSet::load(AxFilename const& file)
{
    return axGuarded("read-failed", file, false,
                     [&]() -> decltype(false)
                     {
                         std::string text;
                         int error = 0;
                         if (!axReadWholeFile(file, text, error))
                         {
                             std::string const why = std::strerror(error);
                             AxDiagnostics::reportStated(
                                 axFault("unreadable-file", file, "cannot be read: " + why),
                                 axFormat("AxModelSet::load() :          error opening %s for reading: %s\n",
                                          file.native().c_str(), why.c_str()));
                             return false;
                         }
                         AxModelSet read(AxReaderWriter::name(), nullptr);
                         read.myKeepsAll = true;
                         bool const isRead = parse(read, text, file);
                         takeIn(read);
                         return isRead;
                     });
}

void AxModelSet::takeIn(AxModelSet& read)
{
    if (AxReaderWriter::name().isNull())
    {
        setName(read.AxReaderWriter::name().string());
    }
    if (read.myVersion.valueSpecified())
    {
        myVersion = read.myVersion;
    }
    if (read.myComment.valueSpecified())
    {
        myComment = read.myComment;
    }
    for (auto const& [after, item] : read.keptItems())
    {
        keepItem(after, item);
    }
    Loading const loading(*this);
    while (AxListItem* const item = read.first())
    {
        std::unique_ptr<AxModelSetEntry> entry(static_cast<AxModelSetEntry*>(element(item)));
        read.AxList::remove(item);
        adopt(std::move(entry));
    }
}

bool AxModelSet::save(AxFilename const& file)
{
    return axGuarded("save-failed", file, false,
                     [&]() -> decltype(false)
                     {
                         AxSymbolString const head =
                             AxReaderWriter::name().isNull() ? AxSymbolString("model-set") : AxReaderWriter::name();
                         std::string text;
                         writeAs(head, text, 0, false, file);
                         text += '\n';
                         int error = 0;
                         if (axReplaceFile(file, text, error))
                         {
                             return true;
                         }
                         AxDiagnostics::report(axFault("unwritable-file", file,
                                                       std::string("cannot be written: ") + std::strerror(error)));
                         return false;
                     });
}

bool AxModelSet::loadFromDataFiles(AxFilename const& directory)
{
    return axGuarded("read-failed", directory, false,
                     [&]() -> decltype(false)
                     {
                         std::vector<AxFilename> entities;
                         std::vector<AxFilename> groups;
                         if (!filesIn(directory, ".entity", entities) || !filesIn(directory, ".sog", groups))
                         {
                             return false;
                         }
                         bool const areEntitiesRead = addEntities(entities);
                         return addGroups(groups) && areEntitiesRead;
                     });
}

bool AxModelSet::loadEntityFiles(AxFilename const& directory)
{
    return axGuarded("read-failed", directory, false,
                     [&]() -> decltype(false)
                     {
                         std::vector<AxFilename> files;
                         return filesIn(directory, ".entity", files) && addEntities(files);
                     });
}

bool AxModelSet::addEntities(std::vector<AxFilename> const& files)
{
    Loading const loading(*this);
    bool areAllRead = true;
    for (AxFilename const& file : files)
    {
        areAllRead = addEntitiesOf(file) && areAllRead;
    }
    return areAllRead;
}

bool AxModelSet::addEntitiesOf(AxFilename const& file)
{
    AxSourceScope const scope(file);
    AxEnvironmentPtr const env = AxZedXmlUtils::CreateZedXmlEnvironment(file, true);
    if (!env)
    {
        return false;
    }
    for (AxEnvObjectPtr const& element : AxObjectElement::allOf(env))
    {
        auto entry = std::make_unique<AxModelSetEntry>(AxSymbolString(), nullptr);
        if (entry->readFromEnvironment(env, element))
        {
            adopt(std::move(entry));
        }
        else if (!AxObjectElement::hasUnreadableObjectType(element))
        {
            reportNoType(env, element);
        }
    }
    return true;
}

bool AxModelSet::loadSimulationObjectGroupFiles(AxFilename const& directory)
{
    return axGuarded("read-failed", directory, false,
                     [&]() -> decltype(false)
                     {
                         std::vector<AxFilename> files;
                         return filesIn(directory, ".sog", files) && addGroups(files);
                     });
}

bool AxModelSet::addGroups(std::vector<AxFilename> const& files)
{
    Loading const loading(*this);
    bool areAllRead = true;
    for (AxFilename const& file : files)
    {
        auto group = std::make_unique<AxSimulationObjectGroupModelSetEntry>(AxSymbolString(), nullptr);
        if (group->load(file))
        {
            adopt(std::move(group));
        }
        else
        {
            areAllRead = false;
        }
    }
    return areAllRead;
}
