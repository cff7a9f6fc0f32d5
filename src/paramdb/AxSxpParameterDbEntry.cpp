#include "AxSxpParameterDbEntry.h"

#include "AxEntityFiles.h"
#include "AxEntryOrigin.h"
#include "AxExtFileInputStream.h"
#include "AxGuarded.h"
#include "AxParameterDbFiles.h"
#include "AxReaderWriterFactory.h"
#include "AxReaderWriterFile.h"
#include "AxRwVariableBindings.h"
#include "AxSxpParameterDbFileEntry.h"
#include "AxTextReader.h"
#include "AxZedObjectParameterFactory.h"
#include "AxZedObjectParameters.h"
#include "AxZedXmlUtils.h"
#include "AxlFunctions.h"
#include "AxlSyntaxError.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <exception>
#include <typeinfo>

namespace
{
/// Whether a record's text names its type: in the second element, or in a later item of that head.
bool namesType(AxlObj const* object)
{
    auto const hasText = [](AxlObj const* item)
    { return item->isPair() && (item->cdr()->car()->isSymbol() || item->cdr()->car()->isString()); };
    AxlObj const* const items = object->cdr();
    if (hasText(items->car()))
    {
        return true;
    }
    for (AxlObj const* rest = items->cdr(); rest->isPair(); rest = rest->cdr())
    {
        if (rest->car()->car()->text() == "parameter-type" && hasText(rest->car()))
        {
            return true;
        }
    }
    return false;
}
} // namespace

/// One reading of the record: the file found and where the record begins in it.
struct AxSxpParameterDbEntry::Reading
{
    explicit Reading(Reading*& current) : myCurrent(current) { myCurrent = this; }
    Reading(Reading const&) = delete;
    Reading& operator=(Reading const&) = delete;
    ~Reading() { myCurrent = nullptr; }

    AxFilename file{};
    std::string lineForCutOff{};
    bool isCutOff = false;
    std::uint32_t line = 1;
    std::uint32_t column = 1;

private:
    Reading*& myCurrent;
};

/// What a record's text may refer to: files beside it and along the paths, variables of its database.
struct AxSxpParameterDbEntry::Sources
{
    explicit Sources(AxSxpParameterDbEntry const& entry)
    {
        if (entry.myReading != nullptr)
        {
            files.push_back(entry.myReading->file.directory());
        }
        files.insert(files.end(), entry.myOrigin->searchPaths.begin(), entry.myOrigin->searchPaths.end());
        if (!entry.myOrigin->path.isNull())
        {
            files.push_back(entry.myOrigin->path);
        }
        if (entry.myOrigin->variableBindings)
        {
            bindings.push_back(entry.myOrigin->variableBindings.get());
        }
        if (!entry.myOrigin->databaseDirectory.isNull())
        {
            axBindDatabaseDirectory(database, entry.myOrigin->databaseDirectory);
            bindings.push_back(&database);
        }
    }
    AxFilenameList files;
    AxRwVariableBindings database{"opd-variables"};
    AxBindingsList bindings;
};

AxSxpParameterDbEntry::OriginPtr const& AxSxpParameterDbEntry::noOrigin()
{
    static OriginPtr const none(new Origin);
    return none;
}

AxSxpParameterDbEntry::AxSxpParameterDbEntry() : myOrigin(noOrigin()) {}

AxSxpParameterDbEntry::AxSxpParameterDbEntry(AxObjectType const& type, NamePlace name, unsigned line, unsigned column)
    : AxZedParameterDbEntry(type), myName(name), myOrigin(noOrigin()), myLine(line), myColumn(column)
{
}

template <class Change>
void AxSxpParameterDbEntry::changeOrigin(Change const& change)
{
    if (myOrigin->use_count() != 1)
    {
        myOrigin.reset(new Origin(*myOrigin));
    }
    change(*myOrigin);
}

AxSxpParameterDbEntry::~AxSxpParameterDbEntry() = default;

AxZedObjectParameters* AxSxpParameterDbEntry::load()
{
    return loadFromFile(filename());
}

AxString AxSxpParameterDbEntry::uniqueIdentifier() const
{
    return filename().string();
}

void AxSxpParameterDbEntry::setFilename(AxFilename const& file)
{
    myFilename = file;
    myName = {};
}

AxFilename const& AxSxpParameterDbEntry::filename() const
{
    if (myName.length != 0)
    {
        takeName();
    }
    return myFilename;
}

void AxSxpParameterDbEntry::takeName() const
{
    axGuarded("no-filename", AxFilename::nullFilename(), false,
              [this]
              {
                  std::string_view const names = myOrigin->names ? *myOrigin->names : std::string_view();
                  myFilename =
                      AxFilename(names.substr(std::min<std::size_t>(myName.begin, names.size()), myName.length));
                  myName = {};
                  return true;
              });
}

void AxSxpParameterDbEntry::setPath(AxFilename const& path)
{
    changeOrigin([&](Origin& origin) { origin.path = path; });
}

AxFilename const& AxSxpParameterDbEntry::path() const
{
    return myOrigin->path;
}

int AxSxpParameterDbEntry::version() const
{
    return myOrigin->version;
}

AxFilename const& AxSxpParameterDbEntry::databaseDirectory() const
{
    return myOrigin->databaseDirectory;
}

void AxSxpParameterDbEntry::setDatabaseDirectory(AxFilename const& directory)
{
    changeOrigin([&](Origin& origin) { origin.databaseDirectory = directory; });
}

void AxSxpParameterDbEntry::setVersion(int version)
{
    changeOrigin([&](Origin& origin) { origin.version = version; });
}

void AxSxpParameterDbEntry::setVariableBindings(boost::shared_ptr<AxRwVariableBindings> const& bindings)
{
    changeOrigin([&](Origin& origin) { origin.variableBindings = bindings; });
}

boost::shared_ptr<AxRwVariableBindings> AxSxpParameterDbEntry::variableBindings() const
{
    return myOrigin->variableBindings;
}

std::vector<AxFilename> const& AxSxpParameterDbEntry::searchPaths() const
{
    return myOrigin->searchPaths;
}

void AxSxpParameterDbEntry::setSearchPaths(std::vector<AxFilename> const& paths)
{
    changeOrigin([&](Origin& origin) { origin.searchPaths = paths; });
}

void AxSxpParameterDbEntry::setOrigin(OriginPtr const& origin)
{
    myOrigin = origin;
}

void AxSxpParameterDbEntry::setFileEntry(AxSxpParameterDbFileEntry const& entry)
{
    myFileEntry.reset(entry.copy());
}

void AxSxpParameterDbEntry::setPlace(boost::shared_ptr<AxFilename const> const& databaseFile, unsigned line,
                                     unsigned column)
{
    if (myOrigin->databaseFile != databaseFile)
    {
        changeOrigin([&](Origin& origin) { origin.databaseFile = databaseFile; });
    }
    myLine = line;
    myColumn = column;
}

bool AxSxpParameterDbEntry::isFromDataRoot() const
{
    return myOrigin->databaseFile && myLine == 0;
}

AxDiagnostic AxSxpParameterDbEntry::faultOfFile(char const* code, AxFilename const& file, std::string const& text) const
{
    AxDiagnostic fault = axFault(code, myOrigin->databaseFile ? *myOrigin->databaseFile : file, text);
    fault.line = myLine;
    fault.column = myColumn;
    return fault;
}

std::vector<AxFilename> AxSxpParameterDbEntry::directories() const
{
    std::vector<AxFilename> directories = myOrigin->searchPaths;
    for (AxFilename const& directory : {myOrigin->path, myOrigin->databaseDirectory})
    {
        if (!directory.isNull())
        {
            directories.push_back(directory);
        }
    }
    return directories;
}

AxFilename AxSxpParameterDbEntry::foundFilename() const
{
    AxFilename found;
    AxFilePtr const open(AxReaderWriterFile::loadHighestPriorityFile(filename(), directories(), found, true));
    return open ? found : AxFilename();
}

AxZedObjectParameters* AxSxpParameterDbEntry::loadFromFile(AxFilename const& file)
{
    if (myReading != nullptr)
    {
        AxDiagnostics::report(axFault("record-loading", file, "the record was asked for while it is being read"));
        return nullptr;
    }
    AxZedObjectParameters* const none = nullptr;
    Use const use(*this); // a sink may remove it
    return axGuarded("read-failed", file, none,
                     [&]
                     {
                         Reading reading(myReading);
                         AxZedObjectParameters* const record =
                             file.extension() == "entity" ? readEntityFile(file) : readTextFile(file);
                         AxZedObjectParameters* const held = record != nullptr ? hold(record) : nullptr;
                         return use.isGone() ? nullptr : held;
                     });
}

AxSxpParameterDbEntry::FilePtr AxSxpParameterDbEntry::openFile(AxFilename const& file,
                                                               std::vector<AxFilename> const& searched)
{
    FilePtr open(AxReaderWriterFile::loadHighestPriorityFile(file, searched, myReading->file, true), &std::fclose);
    if (!open)
    {
        char const* const reason = std::strerror(errno);
        AxDiagnostic fault = faultOfFile("cannot-open", file, "cannot open \"" + file.native() + "\": " + reason);
        for (AxFilename const& directory : searched)
        {
            fault.hint += (fault.hint.empty() ? "searched " : ", ") + directory.native();
        }
        AxDiagnostics::reportStated(std::move(fault),
                                    axFormat("Could not open parameter file %s: %s\n", file.c_str(), reason));
        return open;
    }
    std::setvbuf(open.get(), nullptr, _IONBF, 0); // it is read at once
    return open;
}

AxZedObjectParameters* AxSxpParameterDbEntry::readEntityFile(AxFilename const& file)
{
    std::vector<AxFilename> searched;
    for (AxFilename const& directory : {myOrigin->path, myOrigin->databaseDirectory})
    {
        if (!directory.isNull())
        {
            searched.push_back(directory);
        }
    }
    FilePtr open = openFile(file, searched);
    if (!open)
    {
        return nullptr;
    }
    AxSourceScope const scope(myReading->file);
    AxEntityFiles::Tree const tree = AxEntityFiles::tree(open.get(), myReading->file);
    open.reset(); // a record may name many files in turn
    AxEnvironmentPtr const& env = tree.environment;
    if (!env)
    {
        return nullptr;
    }
    // A database that was saved and loaded again no longer knows which of its entries are patterns.
    AxEnvValuePtr element = tree.objects->find(env, objectType(), typeIsMatchType());
    if (!element)
    {
        element = tree.objects->find(env, objectType(), !typeIsMatchType());
    }
    if (!element)
    {
        std::string const type = objectType().string().string();
        AxDiagnostics::reportStated(faultOfFile("no-element", myReading->file,
                                                "no element of the type " + type + " in \"" + file.native() + '"'),
                                    axFormat("Entry not found for type %s in file %s\n", type.c_str(), file.c_str()));
        return nullptr;
    }
    Sources const sources(*this);
    return AxZedXmlUtils::createParameters(env, element, sources.files, sources.bindings);
}

AxZedObjectParameters* AxSxpParameterDbEntry::readTextFile(AxFilename const& file)
{
    FilePtr const open = openFile(file, directories());
    if (!open)
    {
        return nullptr;
    }
    AxSourceScope const scope(myReading->file);
    myReading->lineForCutOff.append("Parameters are invalid for ").append(file.c_str()).append("\n");
    AxZedObjectParameters* const record = readParameterEntry(open.get(), AxEnvironmentPtr(), nullptr);
    if (record != nullptr && record->invalid() && !myReading->isCutOff)
    {
        AxDiagnostics::reportStated(
            axFaultAt("invalid-record", myReading->line, myReading->column, "the record is not complete"),
            myReading->lineForCutOff);
    }
    return record;
}

AxZedObjectParameters* AxSxpParameterDbEntry::readParameterEntry(std::FILE* file, AxEnvironmentPtr const& env,
                                                                 AxEnvValuePtr* value)
{
    AxFilename const& name = myReading != nullptr ? myReading->file : filename();
    AxExtFileInputStream stream(file, name);
    if (!stream.isValid())
    {
        AxDiagnostics::reportStated(axUnreadable(name, file),
                                    axFormat("couldn't create lisp stream for %s\n", filename().c_str()));
        return nullptr;
    }
    try
    {
        std::uint32_t line = 0;
        std::uint32_t column = 0;
        if (myReading != nullptr && axTextFollows(stream, line, column))
        {
            myReading->line = line;
            myReading->column = column;
        }
        AxZedObjectParameters* const record = readRecord(stream, env, value);
        if (record && axTextFollows(stream, line, column))
        {
            AxDiagnostics::report(
                axFaultAt("text-follows", line, column, "the text behind the record is not read", AxSeverity::Warning));
        }
        return record;
    }
    catch (AxlSyntaxError const& error)
    {
        AxDiagnostics::report(error.diagnostic());
        return nullptr;
    }
}

AxZedObjectParameters* AxSxpParameterDbEntry::readRecord(AxlInputStream& stream, AxEnvironmentPtr const& env,
                                                         AxEnvValuePtr* value)
{
    AxTextReader reader(stream);
    bool unasked = false;
    bool& isCutOff = myReading != nullptr ? myReading->isCutOff : unasked;
    if (myReading != nullptr)
    {
        reader.setLineForCutOff(myReading->lineForCutOff);
    }
    std::string_view const type = reader.peekType("parameter-type");
    AxZedObjectParameterFactory const* const records = AxZedObjectParameters::factory();
    // A derived entry may have a step of its own between the expression and the record.
    bool const isDirect = typeid(*this) == typeid(AxSxpParameterDbEntry);
    if (isDirect && records && !type.empty() && records->knows(AxString(type)))
    {
        std::unique_ptr<AxZedObjectParameters> record(
            AxZedObjectParameters::createParameters(AxString(type).c_str(), env, value));
        if (!record)
        {
            return nullptr;
        }
        Sources const sources(*this);
        if (reader.readObject(*record, sources.files, sources.bindings))
        {
            reader.finish();
            record->setInvalid(record->invalid() || reader.unclosed());
            isCutOff = reader.unclosed();
            return record.release();
        }
    }
    AxlReadOptions options;
    options.closeOpenLists = true;
    AxlReadResult const result = AxcRead(stream, AxlEnv(), options);
    if (result.expr->isEof())
    {
        AxDiagnostics::report(axFaultAt("empty-file", 1, 1, "expected a record, found an empty file"));
        return nullptr;
    }
    bool const isKept = myReading != nullptr && namesType(result.expr.get());
    result.reportUnclosed(isKept ? myReading->lineForCutOff : std::string());
    isCutOff = result.unclosed;
    AxZedObjectParameters* const record = loadParameters(result.expr, env, value);
    if (record && result.unclosed)
    {
        record->setInvalid(true);
    }
    return record;
}

AxZedObjectParameters* AxSxpParameterDbEntry::loadParameters(AxlObjPtr const& object, AxEnvironmentPtr const&,
                                                             AxEnvValuePtr*)
{
    if (!namesType(object.get()))
    {
        AxlObj const* const second = object->cdr()->car();
        AxlObj const* const place = second->line() != 0 ? second : object.get();
        AxDiagnostics::report(
            axFaultAt("no-parameter-type", place->line(), place->column(), "expected (parameter-type ...)"));
        return nullptr;
    }
    Sources const sources(*this);
    return AxZedObjectParameters::createParameters(object, sources.files, sources.bindings);
}

AxZedObjectParameters* AxSxpParameterDbEntry::hold(AxZedObjectParameters* record)
{
    AxZedObjectParameters* const held = parameters();
    if (held == nullptr)
    {
        setParameters(record);
        return record;
    }
    std::unique_ptr<AxZedObjectParameters> const fresh(record);
    AxString const freshType = fresh->type();
    AxString const heldType = held->type();
    if (!(freshType == heldType))
    {
        AxDiagnostics::reportStated(
            axFault("other-type", myReading->file,
                    "expected a record of type " + heldType.string() + ", found " + freshType.string()),
            axFormat("Cannot load different parameter %s type from file into existing type %s\n", freshType.c_str(),
                     heldType.c_str()));
        return nullptr;
    }
    // The types are those of the entry or of a caller; no file gives them.
    fresh->setObjectType(held->objectType());
    fresh->setMatchType(held->matchType());
    AxReaderWriter::factory()->copyReaderWriter(fresh.get(), held);
    held->setObjectNode(fresh->xmlEnvironment(), fresh->objectNode());
    held->setInvalid(fresh->invalid());
    return held;
}
