#include "AxSxpParameterDbFileEntryList.h"

#include "AxDiagnostic.h"
#include "AxParameterDbFiles.h"
#include "AxPlainScanner.h"
#include "AxReaderWriterFactory.h"
#include "AxTextReader.h"
#include "AxTreeCells.h"
#include "AxlPrint.h"

#include <memory>

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
            if (char const* const end = list.myTakesPlain ? list.takePlain(begin, reader.end(), line, column) : nullptr)
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

char const* AxSxpParameterDbFileEntryList::takePlain(char const* begin, char const* textEnd, unsigned line,
                                                     unsigned column)
{
    AxPlainScanner scanner(begin, textEnd, line, column);
    char const* end = nullptr;
    do
    {
        unsigned const entryLine = scanner.line();
        unsigned const entryColumn = scanner.column();
        AxObjectType type;
        std::string_view filename;
        bool const isPlain = scanner.takes("(parameter-entry") && scanner.takes("(object-type") &&
                             scanner.takesType(type) && scanner.takes(")") && scanner.takes("(filename") &&
                             scanner.takes("\"") && scanner.takesText(filename) && scanner.takes("\"") &&
                             scanner.takes(")") && scanner.takes(")");
        if (!isPlain)
        {
            break;
        }
        std::string& names = myPlain.all.names;
        AxSxpParameterDbEntry::NamePlace const name{static_cast<unsigned>(names.size()),
                                                    static_cast<unsigned>(filename.size())};
        names += filename;
        auto entry = std::make_unique<AxSxpParameterDbEntry>(type, name, entryLine, entryColumn);
        myPlain.all.entries.push_back({std::move(entry), count()});
        end = scanner.place();
        scanner.skipBlanks();
    } while (*scanner.place() == '(');
    return end;
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
    keep(AxTreeCells::parsed(text)->car());
}
