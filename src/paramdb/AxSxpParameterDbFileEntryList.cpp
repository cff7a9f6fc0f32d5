#include "AxSxpParameterDbFileEntryList.h"

#include "AxDiagnostic.h"
#include "AxParameterDbFiles.h"
#include "AxlFunctions.h"
#include "AxlPrint.h"

#include <memory>

AxSxpParameterDbFileEntryList::~AxSxpParameterDbFileEntryList() = default;

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
    entry->getSelf(item, files, bindings);
    if (entry->isReadable())
    {
        AxRwList::add(entry.release());
        return item;
    }
    AxDiagnostics::report(axFaultAt("unreadable-entry", item->line(), item->column(),
                                    "the entry has no readable object type or file name and is left out"));
    keep(item.get());
    return item;
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
