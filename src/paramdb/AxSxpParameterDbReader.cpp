#include "AxSxpParameterDbReader.h"

#include "AxEntryOrigin.h"
#include "AxExtFileInputStream.h"
#include "AxGuarded.h"
#include "AxObjectElement.h"
#include "AxParameterDbFiles.h"
#include "AxReaderWriterFile.h"
#include "AxRemoteConfigurationList.h"
#include "AxStreams.h"
#include "AxSxpParameterDb.h"
#include "AxSxpParameterDbEntry.h"
#include "AxSxpParameterDbFileData.h"
#include "AxTextReader.h"
#include "AxZedObjectParameters.h"
#include "AxZedObjectParametersList.h"
#include "AxZedXmlUtils.h"
#include "AxlFunctions.h"
#include "AxlSyntaxError.h"

#include <algorithm>
#include <boost/filesystem/operations.hpp>
#include <boost/make_shared.hpp>
#include <cerrno>
#include <cstring>
#include <exception>
#include <set>
#include <typeinfo>

namespace
{
/// From this version on names are relative to the data root rather than to the application.
constexpr int theFirstVersionWithDataRoot = 100;

void reportTextBehind(AxlInputStream& stream)
{
    std::uint32_t line = 0;
    std::uint32_t column = 0;
    if (axTextFollows(stream, line, column))
    {
        AxDiagnostics::report(
            axFaultAt("text-follows", line, column, "the text behind the first list is not read", AxSeverity::Warning));
    }
}

/// Reads the first expression of a stream and reports what is wrong with its text. Null at the end of the file; what
/// was read counts when the text ends too early.
AxlObjPtr readExpression(AxlInputStream& stream)
{
    AxlReadOptions options;
    options.closeOpenLists = true;
    AxlReadResult const result = AxcRead(stream, AxlEnv(), options);
    if (result.expr->isEof())
    {
        return axcNil();
    }
    result.reportUnclosed();
    if (result.expr->isPair())
    {
        reportTextBehind(stream);
    }
    return result.expr;
}

/// Reads the data straight from the text; a derived class may have a hook of its own for its cells.
void readData(AxlInputStream& stream, AxSxpParameterDbFileData& data, AxFilenameList const& files,
              AxBindingsList const& bindings)
{
    AxTextReader reader(stream);
    if (typeid(data) != typeid(AxSxpParameterDbFileData) || !reader.readObject(data, files, bindings))
    {
        AxlObjPtr const expression = readExpression(stream);
        if (!expression.nil())
        {
            data.getSelf(expression, files, bindings);
        }
        return;
    }
    reader.finish();
    reportTextBehind(stream);
}
} // namespace

/// Adds entries with what those of one file have in common.
struct AxSxpParameterDbReader::Adding
{
    AxSxpParameterDb& db;
    AxSxpParameterDbEntry::OriginPtr origin;

    Adding(AxSxpParameterDb& to, AxFilename const& basePath, boost::shared_ptr<AxRwVariableBindings> const& variables,
           AxSxpParameterDbReader const& reader)
        : db(to), origin(new AxSxpParameterDbEntry::Origin)
    {
        origin->version = db.versionNumber();
        origin->path = basePath;
        origin->variableBindings = variables;
        origin->searchPaths = db.searchPaths();
        origin->databaseDirectory = reader.myDatabaseDirectory;
        origin->databaseFile = reader.myDatabaseFile;
    }

    AxSxpParameterDbEntry* add(AxObjectType const& type, AxFilename const& file, bool typeIsMatchType, unsigned line,
                               unsigned column)
    {
        AxSxpParameterDbEntry* const entry = db.add(type, file, typeIsMatchType, nullptr);
        if (!entry)
        {
            return nullptr;
        }
        // A derived entry may look at what it is given; others share it.
        if (typeid(*entry) == typeid(AxSxpParameterDbEntry))
        {
            entry->setOrigin(origin);
        }
        else
        {
            entry->setVersion(origin->version);
            entry->setPath(origin->path);
            entry->setVariableBindings(origin->variableBindings);
            entry->setSearchPaths(origin->searchPaths);
            entry->setDatabaseDirectory(origin->databaseDirectory);
        }
        entry->setPlace(origin->databaseFile, line, column);
        return entry;
    }

    void add(AxSxpParameterDbFileEntryList::Plain& plain)
    {
        plain.entry->setOrigin(origin);
        if (typeid(db) != typeid(AxSxpParameterDb)) // makes entries of its own
        {
            add(plain.entry->objectType(), plain.entry->filename(), false, plain.entry->line(), plain.entry->column());
            return;
        }
        db.addParameterDbEntry(plain.entry.release());
    }
};

AxSxpParameterDbReader::~AxSxpParameterDbReader() = default;

AxSxpParameterDbFileData* AxSxpParameterDbReader::createParameterDbFileData()
{
    return new AxSxpParameterDbFileData;
}

bool AxSxpParameterDbReader::loadParameterDb(AxFilename const& file, AxSxpParameterDb* db)
{
    if (!db)
    {
        AxWarn("AxSxpParameterDbReader::loadParameterDb() : Can't load NULL parameter database\n");
        return false;
    }
    auto const load = [&]
    {
        AxInfo("Loading parameter database file %s . . .\n", file.native().c_str());
        db->clearDependentParameterFileToCopyPairs();
        AxSourceScope const scope(file); // what the version step tells of a place is not told again
        int version = 0;
        if (!AxSxpParameterDbFileData::getVersion(file, version))
        {
            AxWarn << "Can't determine version number in file " << file << AxEndl;
            return false;
        }
        std::unique_ptr<AxSxpParameterDbFileData> const data(createParameterDbFileData());
        auto const creator = db->remoteConfigurationListCreatorFcn();
        std::unique_ptr<AxRemoteConfigurationList> const configurations(
            creator ? creator("remote-configurations", data->registry()) : nullptr);
        data->setRemoteConfigurationList(configurations.get());
        bool const isLoaded = loadData(file, version, *data, *db);
        data->setRemoteConfigurationList(nullptr);
        return isLoaded;
    };
    return axGuarded("read-failed", file, false, load);
}

bool AxSxpParameterDbReader::loadData(AxFilename const& file, int version, AxSxpParameterDbFileData& data,
                                      AxSxpParameterDb& db)
{
    AxFilename dataRoot;
    myDatabaseFile = boost::make_shared<AxFilename const>(file);
    myDatabaseDirectory = axDirectoryOf(file);
    if (typeid(*this) == typeid(AxSxpParameterDbReader)) // a derived one may look at the entries
    {
        data.entryList().takePlainEntries();
    }
    if (!load(file, &data, dataRoot))
    {
        return false;
    }
    if (!data.versionSpecified())
    {
        data.setVersion(version);
    }
    AxFilename const basePath = version < theFirstVersionWithDataRoot ? AxReaderWriter::appPath() : dataRoot;
    return putFileDataInParameterDb(data, basePath, &db);
}

bool AxSxpParameterDbReader::load(AxFilename const& file, AxSxpParameterDbFileData* data, AxFilename& dataRoot)
{
    if (!data)
    {
        AxWarn("AxSxpParameterDbReader::getParameterDbData() : Can't load parameter data file into NULL "
               "AxSxpParameterDbFileData object\n");
        return false;
    }
    AxFilePtr const stream = axOpenToRead(file);
    if (!stream)
    {
        char const* const reason = std::strerror(errno);
        AxDiagnostics::reportStated(
            axFault("cannot-open", file, std::string("cannot open the file: ") + reason),
            axFormat("Could not open parameter database file %s: %s\n", file.native().c_str(), reason));
        return false;
    }
    return readFileData(file, data, stream.get(), dataRoot);
}

bool AxSxpParameterDbReader::readFileData(AxFilename const& file, AxSxpParameterDbFileData* data, std::FILE* stream,
                                          AxFilename& dataRoot)
{
    AxSourceScope const scope(file);
    AxExtFileInputStream input(stream, file);
    if (!input.isValid())
    {
        AxDiagnostics::reportStated(axUnreadable(file, stream),
                                    axFormat("couldn't create lisp stream for %s\n", file.native().c_str()));
        return false;
    }
    AxFilename const directory = axDirectoryOf(file);
    AxRwVariableBindings database("opd-variables");
    axBindDatabaseDirectory(database, directory);
    try
    {
        readData(input, *data, {directory}, {&database});
    }
    catch (AxlSyntaxError const& error)
    {
        AxDiagnostics::report(error.diagnostic()); // what was read before counts, as in a text that is cut off
    }
    catch (...)
    {
        AxDiagnostics::report(axFault("read-failed", file, axReason()));
        return false;
    }
    bool isBound = false;
    AxString const root = data->variableBindings().stringValue("data-root", &isBound);
    if (isBound)
    {
        std::string const expanded =
            AxRwVariableBindings::expand(root.string(), {&data->variableBindings(), &database});
        dataRoot = directory.combine(AxFilename(expanded));
        boost::system::error_code ignored;
        AxFilename const here(boost::filesystem::absolute(AxFilename(expanded).native(), ignored).string());
        if (!dataRoot.exists() && here.exists())
        {
            dataRoot = here;
        }
        boost::system::error_code missing;
        boost::filesystem::directory_iterator(dataRoot.native(), missing);
        if (missing)
        {
            AxDiagnostics::report(axFaultAt("unreadable-directory", data->dataRootLine(), data->dataRootColumn(),
                                            "cannot read the directory " + dataRoot.native() + ": " + missing.message(),
                                            AxSeverity::Warning));
            return true;
        }
        addEntityFiles(dataRoot, *data);
    }
    return true;
}

void AxSxpParameterDbReader::addEntityFiles(AxFilename const& dataRoot, AxSxpParameterDbFileData& data)
{
    for (AxFilename const& file : AxReaderWriterFile::findFilesByExtension(dataRoot, ".entity"))
    {
        AxSourceScope const scope(file);
        AxEnvironmentPtr const env = AxZedXmlUtils::CreateZedXmlEnvironment(file, true);
        std::set<AxObjectType> types;
        for (AxEnvObjectPtr const& element : AxObjectElement::allOf(env))
        {
            auto const add = [&](AxObjectType const& type, bool isMatchType)
            { data.addEntry(type, file, isMatchType, nullptr)->setElementPlace(element->line(), element->column()); };
            std::vector<AxObjectType> matchTypes;
            AxZedXmlUtils::getMatchTypes(env, element, matchTypes);
            for (AxObjectType const& type : matchTypes)
            {
                add(type, true);
            }
            AxObjectType const type = AxZedXmlUtils::getObjectType(env, element);
            if (!type.isNull())
            {
                add(type, false);
            }
            if (!type.isNull() && !types.insert(type).second)
            {
                AxDiagnostics::report(axFaultAt("repeated-type", element->line(), element->column(),
                                                "the type " + type.string().string() +
                                                    " stands in the file before; the later element answers",
                                                AxSeverity::Warning));
            }
            else if (type.isNull() && matchTypes.empty() && !AxObjectElement::hasUnreadableType(element))
            {
                AxDiagnostics::report(axFaultAt("no-object-type", element->line(), element->column(),
                                                "the element has no object type and no match type, so that nothing "
                                                "finds it",
                                                AxSeverity::Warning));
            }
        }
    }
}

bool AxSxpParameterDbReader::putFileDataInParameterDb(AxSxpParameterDbFileData const& data, AxFilename const& basePath,
                                                      AxSxpParameterDb* db)
{
    if (!db)
    {
        AxWarn("AxSxpParameterDbReader::putFileDataInParameterDb() : Can't load parameter file data into NULL "
               "AxSxpParameterDb object\n");
        return false;
    }
    db->setVersionNumber(data.version());
    auto const shared = boost::make_shared<AxRwVariableBindings>(AxSymbolString("variable-bindings"));
    shared->addAllFrom(data.variableBindings());
    db->addVariableBindings(shared);
    Adding adding(*db, basePath, shared, *this);
    AxSxpParameterDbFileEntryList::PlainEntries taken = data.entryList().takenEntries();
    std::vector<AxSxpParameterDbFileEntryList::Plain>& plainEntries = taken.entries;
    adding.origin->names = std::make_shared<std::string const>(std::move(taken.names));
    auto plain = plainEntries.begin();
    db->expectEntries(plainEntries.size() + static_cast<std::size_t>(data.entryList().count()));
    int count = 0;
    auto const addPlainUpTo = [&](int numBefore)
    {
        constexpr std::ptrdiff_t theReach = 6; // how far ahead memory is asked for
        for (; plain != plainEntries.end() && plain->numBefore <= numBefore; ++plain)
        {
            __builtin_prefetch(plain[std::min(theReach, plainEntries.end() - plain - 1)].entry.get(), 1);
            adding.add(*plain);
        }
    };
    for (AxSxpParameterDbFileEntry* fileEntry : data.entryList())
    {
        addPlainUpTo(count++);
        AxSxpParameterDbEntry* const entry =
            adding.add(fileEntry->objectType(), fileEntry->filename(), fileEntry->typeIsMatchType(), fileEntry->line(),
                       fileEntry->column());
        if (!entry)
        {
            continue;
        }
        if (fileEntry->hasMoreThanItsValues())
        {
            entry->setFileEntry(*fileEntry);
        }
        entryAddedFor(fileEntry, entry);
    }
    addPlainUpTo(count);
    if (myDatabaseFile && data.variableBindings().find("data-root"))
    {
        db->noteDataRoot(*myDatabaseFile);
    }
    db->keepUnreadItems(data);
    AxRemoteConfigurationList const* const read = data.remoteConfigurationList();
    if (read && db->remoteConfigurationList())
    {
        for (AxRemoteConfiguration* configuration : *read)
        {
            configuration->setVariableBindings(shared);
        }
        *db->remoteConfigurationList() += *read;
    }
    return true;
}

void AxSxpParameterDbReader::entryAddedFor(AxSxpParameterDbFileEntry*, AxSxpParameterDbEntry*) {}

void AxSxpParameterDbReader::setFilenamePathsRelativeToFile(AxFilename const& file, AxSxpParameterDbFileData* data)
{
    if (!data)
    {
        AxWarn("AxSxpParameterDbReader::setFilenamePathsRelativeToFile() : Can't set paths on NULL "
               "AxSxpParameterDbFileData object\n");
        return;
    }
    AxFilename const directory = file.directory();
    for (AxSxpParameterDbFileEntry* entry : data->entryList())
    {
        if (entry->filename().isNull())
        {
            AxWarn("AxSxpParameterDbReader::setFilenamePathsRelativeToFile() : empty filename in entry\n");
            continue;
        }
        entry->setFilename(directory.combine(entry->filename()));
    }
}

bool AxSxpParameterDbReader::load(AxFilename const& file, AxZedObjectParametersList* list)
{
    if (!list)
    {
        AxWarn("AxSxpParameterDbReader::load() : NULL AxZedObjectParametersList specified\n");
        return false;
    }
    AxFilePtr const stream = axOpenToRead(file);
    if (!stream)
    {
        char const* const reason = std::strerror(errno);
        AxDiagnostics::reportStated(
            axFault("cannot-open", file, std::string("cannot open the file: ") + reason),
            axFormat("Could not open parameter database file %s: %s\n", file.native().c_str(), reason));
        return false;
    }
    AxSourceScope const scope(file);
    AxExtFileInputStream input(stream.get(), file);
    if (!input.isValid())
    {
        AxDiagnostics::reportStated(axUnreadable(file, stream.get()),
                                    axFormat("couldn't create lisp stream for %s\n", file.native().c_str()));
        return false;
    }
    try
    {
        AxlObjPtr const expression = readExpression(input);
        if (!expression.nil())
        {
            list->getSelf(expression, {file.directory()}, AxReaderWriter::nullVariableReference());
        }
    }
    catch (AxlSyntaxError const& error)
    {
        AxDiagnostics::report(error.diagnostic());
        return false;
    }
    catch (...)
    {
        AxDiagnostics::report(axFault("read-failed", file, axReason()));
        return false;
    }
    list->inheritValuesFromAncestors();
    return true;
}

bool AxSxpParameterDbReader::putFileDataInParameterDb(AxZedObjectParametersList const& list, AxSxpParameterDb* db)
{
    if (!db)
    {
        AxWarn("AxSxpParameterDbReader::putFileDataInParameterDb() : Can't load parameter file data into NULL "
               "AxSxpParameterDb object\n");
        return false;
    }
    for (AxListItem const* item = list.first(); item; item = item->next())
    {
        auto const* const record = static_cast<AxZedObjectParameters const*>(AxRwList::element(item));
        AxZedObjectParameters* const copy = record->clone(record->AxReaderWriter::name(), nullptr);
        if (copy)
        {
            db->add(copy->objectType(), AxFilename(), false, copy);
        }
    }
    return true;
}
