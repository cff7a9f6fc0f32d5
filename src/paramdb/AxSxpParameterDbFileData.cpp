#include "AxSxpParameterDbFileData.h"

#include "AxDummyParameterDb.h"
#include "AxExtFileInputStream.h"
#include "AxParameterDbFiles.h"
#include "AxReaderWriterFactory.h"
#include "AxlFunctions.h"
#include "AxlSyntaxError.h"

#include <cerrno>
#include <cstring>
#include <exception>

namespace
{
AxSymbolString bindingsWord()
{
    static AxSymbolString const word("variable-bindings");
    return word;
}

bool definesVariables(AxlObj const* item)
{
    return item->car()->text() == bindingsWord().view();
}

/// Reads the file's items one by one up to the version, so that what is wrong behind it is said once, by the load.
void readVersion(AxlInputStream& stream, AxDummyParameterDb& db)
{
    std::uint32_t const line = static_cast<std::uint32_t>(stream.lineCount());
    std::uint32_t const column = stream.column();
    if (stream.peekc() != '(')
    {
        return;
    }
    stream.fgetc();
    std::uint32_t ignoredLine = 0;
    std::uint32_t ignoredColumn = 0;
    while (axTextFollows(stream, ignoredLine, ignoredColumn))
    {
        if (stream.peekc() == ')')
        {
            return;
        }
        AxlObjPtr const item = AxcRead(stream);
        bool const isVersion = item->car()->text() == "version" && item->cdr()->car()->isInteger();
        if (isVersion)
        {
            db.getSelf(AxcCons(AxcSymbol("parameter-database"), AxcCons(item, axcNil())),
                       AxReaderWriter::nullFilenames(), AxReaderWriter::nullVariableReference());
            return;
        }
    }
    throw AxlSyntaxError("unclosed-list", "the list is not closed", line, column);
}

bool readVersion(AxFilename const& file, std::FILE* open, int& version)
{
    AxExtFileInputStream stream(open, file);
    if (!stream.isValid())
    {
        AxDiagnostics::reportStated(
            axFault("unreadable-file", file, "the file cannot be read"),
            axFormat("AxSxpParameterDbFileData::isSxpParameterDbData() : couldn't create lisp stream for %s\n",
                     file.native().c_str()));
        return false;
    }
    std::uint32_t line = 0;
    std::uint32_t column = 0;
    if (!axTextFollows(stream, line, column))
    {
        AxDiagnostics::reportStated(axFaultAt("empty-file", 1, 1, "the file is empty"),
                                    "AxSxpParameterDbFileData::isSxpParameterDbData() : empty parameter file\n");
        return false;
    }
    AxDummyParameterDb db("parameter-database", nullptr);
    readVersion(stream, db);
    if (db.versionSpecified())
    {
        version = db.version();
        return true;
    }
    AxDiagnostics::reportStated(axFaultAt("no-version", line, column, "the file has no version", AxSeverity::Warning),
                                "Version not found, assuming pre-3.7 version parameter database file\n");
    return true;
}
} // namespace

/// A database file is read without cells but for its variables, which hold for what stands behind them.
struct AxSxpParameterDbFileData::Entry : AxTypeEntry<AxSxpParameterDbFileData>
{
    Entry() : AxTypeEntry(ops()) {}

    static AxTypeOps ops()
    {
        AxTypeOps ops;
        ops.create = [](AxSymbolString name, AxReaderWriterRegistry* registry) -> AxReaderWriter*
        { return new AxSxpParameterDbFileData(name, registry); };
        ops.copy = [](AxReaderWriter& to, AxReaderWriter const& from) { to.assign(from); };
        ops.equal = [](AxReaderWriter const& a, AxReaderWriter const& b) { return a == b; };
        ops.ownItem = [](AxReaderWriter& rw, AxlObj const* item, std::size_t, AxBindingsList& bindings)
        {
            if (!definesVariables(item))
            {
                return false;
            }
            AxRwVariableBindings& known = static_cast<AxSxpParameterDbFileData&>(rw).myVariableBindings;
            AxRwVariableBindings defined;
            defined.getSelf(AxlObjPtr(item), nullFilenames(), bindings);
            known.addAllFrom(defined);
            bindings.remove(&known);
            bindings.push_front(&known);
            return true;
        };
        return ops;
    }
};

AxSxpParameterDbFileData::Entry const AxSxpParameterDbFileData::ourEntry;

AxSxpParameterDbFileData::AxSxpParameterDbFileData() : AxSxpParameterDbFileData("parameter-database", nullptr) {}

AxSxpParameterDbFileData::~AxSxpParameterDbFileData() = default;

AxSxpParameterDbFileEntry* AxSxpParameterDbFileData::addEntry(AxObjectType const& type, AxFilename const& file,
                                                              bool typeIsMatchType, AxZedObjectParameters* parameters)
{
    auto* const entry = new AxSxpParameterDbFileEntry("parameter-entry", nullptr);
    entry->setObjectType(type);
    entry->setFilename(file);
    entry->setTypeIsMatchType(typeIsMatchType);
    entry->setParameters(parameters);
    myEntries.addToEnd(entry);
    return entry;
}

void AxSxpParameterDbFileData::setVersion(int version)
{
    myVersion = version;
    myVersion.setValueSpecified(true, false);
}

void AxSxpParameterDbFileData::getSelf(AxlObjPtr const& expression, AxFilenameList const& files,
                                       AxBindingsList const& bindings)
{
    myVariableBindings.clear();
    std::vector<AxlObj const*> others;
    for (AxlObj const* rest = expression->cdr(); rest->isPair(); rest = rest->cdr())
    {
        if (!definesVariables(rest->car()))
        {
            others.push_back(rest->car());
            continue;
        }
        AxRwVariableBindings defined;
        defined.getSelf(AxlObjPtr(rest->car()), files, bindings);
        myVariableBindings.addAllFrom(defined);
    }
    if (myVariableBindings.empty())
    {
        AxRecordOf::getSelf(expression, files, bindings);
        return;
    }
    AxlObjPtr items;
    for (auto other = others.rbegin(); other != others.rend(); ++other)
    {
        items = AxcCons(AxlObjPtr(*other), items);
    }
    AxBindingsList sets{&myVariableBindings};
    sets.insert(sets.end(), bindings.begin(), bindings.end());
    AxRecordOf::getSelf(AxcCons(AxcCar(expression), items), files, sets);
}

void AxSxpParameterDbFileData::putData(std::string& out, int indent)
{
    if (!myVariableBindings.empty())
    {
        out += '\n';
        putIndent(out, indent + 1);
        myVariableBindings.putSelf(out, indent + 1, true, AxFilename::nullFilename());
    }
}

bool AxSxpParameterDbFileData::getVersion(AxFilename const& file, int& version)
{
    version = 0;
    AxFilePtr const open = axOpenToRead(file);
    if (!open)
    {
        char const* const reason = std::strerror(errno);
        AxDiagnostics::reportStated(
            axFault("cannot-open", file, reason),
            axFormat("AxSxpParameterDbFileData::getVersionNumber() : Could not open parameter database file %s: %s\n",
                     file.native().c_str(), reason));
        return false;
    }
    AxSourceScope const scope(file);
    try
    {
        return readVersion(file, open.get(), version);
    }
    catch (AxlSyntaxError const& error)
    {
        AxDiagnostics::report(error.diagnostic());
    }
    catch (std::exception const& error)
    {
        AxDiagnostics::report(axFault("read-failed", file, error.what()));
    }
    return false;
}
