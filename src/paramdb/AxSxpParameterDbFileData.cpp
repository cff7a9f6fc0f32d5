#include "AxSxpParameterDbFileData.h"

#include "AxDummyParameterDb.h"
#include "AxExtFileInputStream.h"
#include "AxParameterDbFiles.h"
#include "AxPlainScanner.h"
#include "AxReadFrame.h"
#include "AxReaderWriterFactory.h"
#include "AxlFunctions.h"
#include "AxlSyntaxError.h"

#include <array>
#include <cerrno>
#include <cstring>
#include <exception>
#include <memory>

namespace
{
constexpr int theNewestVersion = 101;

AxSymbolString bindingsWord()
{
    static AxSymbolString const word("variable-bindings");
    return word;
}

bool definesVariables(AxlObj const* item)
{
    return item->car()->text() == bindingsWord().view();
}

/// Reads the file's items one by one up to the version, so that what is wrong behind it is said once, by the load. The
/// stream stands at line and column, which are settled when it was told there, or at the version, that there is none.
void readVersion(AxlInputStream& stream, AxDummyParameterDb& db, std::uint32_t line, std::uint32_t column)
{
    if (stream.peekc() != '(')
    {
        db.getSelf(AxcRead(stream), AxReaderWriter::nullFilenames(), AxReaderWriter::nullVariableReference());
        AxSourceScope::settle(line, column);
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
        AxlObj const* const value = item->cdr()->car();
        if (item->car()->text() != "version" || value->isReference())
        {
            continue;
        }
        db.getSelf(AxcCons(AxcSymbol("parameter-database"), AxcCons(item, axcNil())), AxReaderWriter::nullFilenames(),
                   AxReaderWriter::nullVariableReference());
        if (!db.versionSpecified())
        {
            AxSourceScope::settle(value->line() != 0 ? value->line() : item->line(),
                                  value->line() != 0 ? value->column() : item->column());
            AxSourceScope::settle(line, column);
        }
        else if (db.version() > theNewestVersion)
        {
            AxDiagnostics::report(axFaultAt("newer-version", value->line(), value->column(),
                                            "version " + std::to_string(db.version()) + " is newer than " +
                                                std::to_string(theNewestVersion),
                                            AxSeverity::Warning));
        }
        return;
    }
    throw AxlSyntaxError::unclosedList(line, column);
}

/// Reads the version where most files have it, right at the start, without reading the rest of them.
bool readLeadingVersion(std::FILE* open, int& version)
{
    std::array<char, 128> text{};
    std::size_t const size = std::fread(text.data(), 1, text.size() - 1, open);
    std::rewind(open);
    AxPlainScanner scanner(text.data(), text.data() + size, 1, 1);
    std::int32_t number = 0;
    bool const isThere = scanner.takes("(parameter-database") && scanner.takes("(version") && scanner.skipBlanks() &&
                         scanner.takesNumber(number) && scanner.takes(")") && number <= theNewestVersion;
    version = isThere ? number : version;
    return isThere;
}

bool readVersion(AxFilename const& file, std::FILE* open, int& version)
{
    if (readLeadingVersion(open, version))
    {
        return true;
    }
    AxExtFileInputStream stream(open, file);
    if (!stream.isValid())
    {
        AxDiagnostics::reportStated(
            axUnreadable(file, open),
            axFormat("AxSxpParameterDbFileData::isSxpParameterDbData() : couldn't create lisp stream for %s\n",
                     file.native().c_str()));
        return false;
    }
    std::uint32_t line = 0;
    std::uint32_t column = 0;
    if (!axTextFollows(stream, line, column))
    {
        AxDiagnostics::reportStated(
            axFaultAt("empty-file", 1, 1, "expected (parameter-database ...), found an empty file"),
            "AxSxpParameterDbFileData::isSxpParameterDbData() : empty parameter file\n");
        return false;
    }
    AxDummyParameterDb db("parameter-database", nullptr);
    readVersion(stream, db, line, column);
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
            auto& data = static_cast<AxSxpParameterDbFileData&>(rw);
            data.takeVariables(item, nullFilenames(), bindings);
            bindings.remove(&data.myVariableBindings);
            bindings.push_front(&data.myVariableBindings);
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
    auto entry = std::make_unique<AxSxpParameterDbFileEntry>("parameter-entry", nullptr);
    entry->setObjectType(type);
    entry->setFilename(file);
    entry->setTypeIsMatchType(typeIsMatchType);
    entry->setParameters(parameters);
    myEntries.addToEnd(entry.get());
    return entry.release();
}

void AxSxpParameterDbFileData::setVersion(int version)
{
    myVersion = version;
    myVersion.setValueSpecified(true, false);
}

void AxSxpParameterDbFileData::takeVariables(AxlObj const* item, AxFilenameList const& files,
                                             AxBindingsList const& bindings)
{
    AxRwVariableBindings defined;
    defined.getSelf(AxlObjPtr(item), files, bindings);
    myVariableBindings.addAllFrom(defined);
    for (AxlObj const* rest = item->cdr(); rest->isPair(); rest = rest->cdr())
    {
        if (rest->car()->car()->text() == "data-root")
        {
            myDataRootLine = rest->car()->line();
            myDataRootColumn = rest->car()->column();
        }
    }
}

void AxSxpParameterDbFileData::getSelf(AxlObjPtr const& expression, AxFilenameList const& files,
                                       AxBindingsList const& bindings)
{
    if (expression->car()->isPair())
    {
        getSelf(AxReadFrame::named(expression, false), files, bindings);
        return;
    }
    myVariableBindings.reset();
    std::vector<AxlObj const*> others;
    bool hasVariables = false;
    for (AxlObj const* rest = expression->cdr(); rest->isPair(); rest = rest->cdr())
    {
        if (!definesVariables(rest->car()))
        {
            others.push_back(rest->car());
            continue;
        }
        takeVariables(rest->car(), files, bindings);
        hasVariables = true;
    }
    if (!hasVariables)
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
    if (!myVariableBindings.empty() || !myVariableBindings.keptItems().empty())
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
            axFault("cannot-open", file, std::string("cannot open the file: ") + reason),
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
    catch (...)
    {
        AxDiagnostics::report(axFault("read-failed", file, axReason()));
    }
    return false;
}
