#include "AxSxpParameterDbFileEntryList.h"

#include "AxDiagnostic.h"
#include "AxParameterDbFiles.h"
#include "AxReaderWriterFactory.h"
#include "AxTextReader.h"
#include "AxlFunctions.h"
#include "AxlPrint.h"

#include <algorithm>
#include <charconv>
#include <cstring>
#include <memory>

namespace
{
/// Goes through text that ends in a zero byte.
class PlainScanner
{
public:
    explicit PlainScanner(char const* at) : myAt(at) {}

    char const* place() const { return myAt; }

    /// These characters, behind any blanks.
    bool takes(std::string_view text)
    {
        skipBlanks();
        bool const isThere = std::strncmp(myAt, text.data(), text.size()) == 0;
        myAt += isThere ? text.size() : 0;
        return isThere;
    }
    /// Seven or eight whole numbers, each behind a blank.
    bool takesType(AxObjectType& type)
    {
        AxObjectType::Fields fields{};
        std::size_t count = 0;
        for (; count < fields.size() && skipBlanks() && *myAt != ')'; ++count)
        {
            char const* end = *myAt == '-' ? myAt + 1 : myAt;
            while (*end >= '0' && *end <= '9')
            {
                ++end;
            }
            auto const [last, error] = std::from_chars(myAt, end, fields[count]);
            if (error != std::errc() || last != end)
            {
                return false;
            }
            myAt = end;
        }
        if (count + 1 == fields.size())
        {
            std::move_backward(fields.begin(), fields.end() - 1, fields.end());
            fields[0] = 0;
        }
        type = AxObjectType(fields);
        return count + 1 >= fields.size();
    }
    /// Up to the quote; without escapes and variables.
    bool takesText(std::string& text)
    {
        char const* const begin = myAt;
        while (*myAt != '"' && *myAt != '\\' && *myAt != '\0' && !(*myAt == '$' && myAt[1] == '('))
        {
            ++myAt;
        }
        text.assign(begin, myAt);
        return *myAt == '"';
    }

private:
    bool skipBlanks()
    {
        char const* const begin = myAt;
        while (*myAt == ' ' || *myAt == '\n' || *myAt == '\t' || *myAt == '\r')
        {
            ++myAt;
        }
        return myAt != begin;
    }

    char const* myAt;
};
} // namespace

/// The entries of a database are read without cells; only one that cannot be understood is looked at again.
struct AxSxpParameterDbFileEntryList::Entry : AxTypeEntry<AxSxpParameterDbFileEntryList>
{
    Entry() : AxTypeEntry(ops()) {}

    static AxTypeOps ops()
    {
        AxTypeOps ops = AxTypeOps::withCreator<AxSxpParameterDbFileEntryList>();
        ops.readElement =
            [](AxRwList& rw, AxTextReader& reader, AxFilenameList const& files, AxBindingsList const& bindings)
        {
            static AxSymbolString const word("parameter-entry");
            if (reader.peekHead() != word.view())
            {
                return false;
            }
            auto& list = static_cast<AxSxpParameterDbFileEntryList&>(rw);
            char const* const begin = reader.place();
            std::uint32_t line = 0;
            std::uint32_t column = 0;
            reader.locate(begin, line, column);
            if (char const* const end = list.myTakesPlain ? list.takePlain(begin, line, column) : nullptr)
            {
                reader.moveTo(end);
                return true;
            }
            auto entry = std::make_unique<AxSxpParameterDbFileEntry>(word, nullptr);
            entry->setPlace(line, column);
            reader.read(*entry, files, bindings);
            bool const isCutOff = reader.unclosed() && entry->filename().isNull();
            if (entry->isReadable() && !isCutOff)
            {
                list.AxRwList::add(entry.release());
            }
            else
            {
                list.leaveOut(reader.cellsSince(begin).get(), line, column);
            }
            return true;
        };
        return ops;
    }
};

AxSxpParameterDbFileEntryList::Entry const AxSxpParameterDbFileEntryList::ourEntry;

AxSxpParameterDbFileEntryList::~AxSxpParameterDbFileEntryList() = default;

char const* AxSxpParameterDbFileEntryList::takePlain(char const* begin, unsigned line, unsigned column)
{
    PlainScanner scanner(begin);
    Plain plain{{}, {}, line, column, count()};
    bool const isPlain = scanner.takes("(") && scanner.takes("parameter-entry") && scanner.takes("(") &&
                         scanner.takes("object-type") && scanner.takesType(plain.type) && scanner.takes(")") &&
                         scanner.takes("(") && scanner.takes("filename") && scanner.takes("\"") &&
                         scanner.takesText(plain.filename) && scanner.takes("\"") && scanner.takes(")") &&
                         scanner.takes(")");
    if (!isPlain)
    {
        return nullptr;
    }
    myPlain.push_back(std::move(plain));
    return scanner.place();
}

AxlObjPtr AxSxpParameterDbFileEntryList::getData(AxlObjPtr const& item, AxFilenameList const& files,
                                                 AxBindingsList const& bindings)
{
    if (item->car()->text() != "parameter-entry")
    {
        AxDiagnostics::report(axFaultAt(
            "unknown-element", item->line(), item->column(),
            "expected (parameter-entry ...), found \"" + item->car()->pname().string() + '"', AxSeverity::Warning));
        keep(item.get());
        return item;
    }
    auto entry = std::make_unique<AxSxpParameterDbFileEntry>("parameter-entry", nullptr);
    entry->setPlace(item->line(), item->column());
    entry->getSelf(item, files, bindings);
    if (entry->isReadable())
    {
        AxRwList::add(entry.release());
        return item;
    }
    leaveOut(item.get(), item->line(), item->column());
    return item;
}

void AxSxpParameterDbFileEntryList::leaveOut(AxlObj const* item, unsigned line, unsigned column)
{
    AxlObj const* rest = item->cdr();
    while (rest->isPair() && rest->car()->car()->text() != "object-type")
    {
        rest = rest->cdr();
    }
    if (!rest->isPair()) // else it was told what is wrong with the type or the file name
    {
        AxDiagnostics::report(
            axFaultAt("unreadable-entry", line, column, "expected (object-type ...) in the entry, which is left out"));
    }
    keep(item);
}

void AxSxpParameterDbFileEntryList::keep(AxlObj const* item)
{
    keepElement(item);
    std::string text;
    axAppendCell(text, item);
    myUnread.push_back(std::move(text));
}

void AxSxpParameterDbFileEntryList::keepUnread(std::string const& text)
{
    AxlInputStream stream(text);
    keep(AxcRead(stream).get());
}
