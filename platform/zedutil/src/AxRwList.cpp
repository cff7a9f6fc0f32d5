#include "AxRwList.h"

#include "AxDiagnostic.h"
#include "AxReadFrame.h"
#include "AxReaderWriterFactory.h"
#include "AxRegistryShape.h"
#include "AxTreeCells.h"
#include "AxlObj.h"
#include "AxlPrint.h"

AxRwList::AxRwList() : AxRwList(AxSymbolString(), nullptr) {}

AxRwList::AxRwList(AxSymbolString name, AxReaderWriterRegistry* registry) : AxReaderWriter(name, registry)
{
    setFlag(List, true);
}

AxRwList::AxRwList(AxString const& name, AxReaderWriterRegistry* registry) : AxRwList(AxSymbolString(name), registry) {}

AxRwList::AxRwList(char const* name, AxReaderWriterRegistry* registry) : AxRwList(AxSymbolString(name), registry) {}

AxRwList::AxRwList(AxKeyword const& keyword, AxReaderWriterRegistry* registry) : AxReaderWriter(keyword, registry)
{
    setFlag(List, true);
}

AxRwList::AxRwList(AxSymbolString name, AxRwList const& other, AxReaderWriterRegistry* registry)
    : AxReaderWriter(name, other, registry)
{
    setFlag(List, true);
}

AxRwList::AxRwList(AxRwList const& other) : AxReaderWriter(other), AxList()
{
    setFlag(List, true);
}

AxRwList::~AxRwList() = default;

void AxRwList::add(AxReaderWriter* rw)
{
    addToEnd(rw);
}

void AxRwList::addWithAlternateName(AxReaderWriter* rw, AxSymbolString name)
{
    if (rw)
    {
        rw->setName(name.string());
        add(rw);
    }
}

void AxRwList::addToStart(AxReaderWriter* rw)
{
    if (rw)
    {
        AxList::addToStart(rw);
        edited();
    }
}

void AxRwList::addToEnd(AxReaderWriter* rw)
{
    if (!rw)
    {
        return;
    }
    try
    {
        AxList::add(rw);
    }
    catch (...)
    {
        // What a list reads is handed over to it; nobody else would delete it.
        if (AxReadFrame::innermost && &AxReadFrame::innermost->record == this)
        {
            delete rw;
        }
        throw;
    }
    edited();
}

void AxRwList::edited()
{
    setFlag(Specified, true);
    valueAssigned();
}

AxListItem* AxRwList::itemOf(AxReaderWriter const* rw) const
{
    for (AxListItem* item = first(); item; item = item->next())
    {
        if (element(item) == rw)
        {
            return item;
        }
    }
    return nullptr;
}

AxListItem* AxRwList::itemOf(AxSymbolString name) const
{
    for (AxListItem* item = first(); item; item = item->next())
    {
        if (element(item)->name() == name)
        {
            return item;
        }
    }
    return nullptr;
}

void AxRwList::remove(AxReaderWriter* rw, AxListItem* item)
{
    AxListItem* const place = item ? item : itemOf(rw);
    if (place)
    {
        AxList::remove(place);
        edited();
    }
}

AxlObjPtr AxRwList::getLocalData(AxlObjPtr const& items)
{
    return items;
}

void AxRwList::addBefore(AxReaderWriter* rw, AxListItem* item)
{
    if (rw)
    {
        if (item)
        {
            insertBefore(item, rw);
        }
        else
        {
            AxList::add(rw);
        }
        edited();
    }
}

void AxRwList::addBefore(AxReaderWriter* rw, AxReaderWriter* element)
{
    addBefore(rw, itemOf(element));
}

void AxRwList::addBefore(AxReaderWriter* rw, AxSymbolString element)
{
    addBefore(rw, itemOf(element));
}

void AxRwList::addBefore(AxReaderWriter* rw, AxString const& element)
{
    addBefore(rw, itemOf(AxSymbolString(element)));
}

void AxRwList::addAfter(AxReaderWriter* rw, AxListItem* item)
{
    if (rw)
    {
        if (item)
        {
            insertAfter(item, rw);
        }
        else
        {
            AxList::add(rw);
        }
        edited();
    }
}

void AxRwList::addAfter(AxReaderWriter* rw, AxReaderWriter* element)
{
    addAfter(rw, itemOf(element));
}

void AxRwList::addAfter(AxReaderWriter* rw, AxSymbolString element)
{
    addAfter(rw, itemOf(element));
}

void AxRwList::addAfter(AxReaderWriter* rw, AxString const& element)
{
    addAfter(rw, itemOf(AxSymbolString(element)));
}

void AxRwList::removeAll()
{
    AxList::removeAll();
    valueAssigned();
}

void AxRwList::removeAndDeleteAll()
{
    for (AxListItem const* item = first(); item; item = item->next())
    {
        delete element(item);
    }
    AxList::removeAll();
    valueAssigned();
}

std::vector<AxString> AxRwList::supportedXmlTypes() const
{
    return {};
}

void AxRwList::reset()
{
    removeAndDeleteAll();
    AxReaderWriter::reset();
}

char const* AxRwList::readerWriterType() const
{
    return "AxRwList";
}

char const* AxRwList::xmlType() const
{
    return "list";
}

AxRwList& AxRwList::operator=(AxRwList const& other)
{
    if (this != &other)
    {
        removeAndDeleteAll();
        copyElements(other);
        assign(other);
    }
    return *this;
}

void AxRwList::copyElements(AxRwList const& other)
{
    for (AxListItem const* item = other.first(); item; item = item->next())
    {
        AxReaderWriter const* const from = element(item);
        if (AxReaderWriter* const copy = factory()->cloneReaderWriter(from->readerWriterType(), from, nullptr))
        {
            AxList::add(copy);
        }
    }
}

bool AxRwList::equals(AxRwList const& other) const
{
    if (count() != other.count() || AxReaderWriter::operator!=(other))
    {
        return false;
    }
    AxListItem const* theirs = other.first();
    for (AxListItem const* mine = first(); mine; mine = mine->next(), theirs = theirs->next())
    {
        if (!factory()->compareReaderWriter(element(mine), element(theirs)))
        {
            return false;
        }
    }
    return true;
}

void AxRwList::getSelf(AxlObjPtr const& expression, AxFilenameList const& files, AxBindingsList const& bindings)
{
    AxReaderWriter::getSelf(expression, files, bindings);
}

void AxRwList::readElements(AxlObj const* items, AxFilenameList const& files, AxBindingsList const& bindings)
{
    removeAndDeleteAll();
    AxReadFrame frame(*this);
    AxlObjPtr const rest = getLocalData(AxlObjPtr(items));
    for (AxlObj const* item = rest.get(); item->tag() == AxlObj::Tag::Pair; item = item->cdr())
    {
        readElement(item->car(), frame, files, bindings);
    }
}

void AxRwList::readElement(AxlObj const* item, AxReadFrame& frame, AxFilenameList const& files,
                           AxBindingsList const& bindings)
{
    AxReaderWriterRegistry const* const members = registryIfAny();
    AxlObj const* const head = item->car();
    bool const isOwn =
        members && members->size() != 0 && head->tag() == AxlObj::Tag::Symbol && members->find(head->symbol());
    if (isOwn)
    {
        readItem(item, frame, files, bindings);
    }
    else if (head->text() == AxTreeCells::theXmlHead)
    {
        keepElement(item); // that was told when the tree it comes from was read
    }
    else if (item->tag() == AxlObj::Tag::Pair)
    {
        getData(AxlObjPtr(item), files, bindings);
    }
    else
    {
        AxDiagnostic fault;
        fault.severity = AxSeverity::Warning;
        fault.code = "not-an-item";
        fault.line = item->line();
        fault.column = item->column();
        fault.path = AxReadFrame::path();
        fault.text = "expected (name item...) in \"" + name().string().string() + '"';
        AxDiagnostics::report(std::move(fault));
        keepElement(item);
    }
}

AxlObjPtr AxRwList::getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings)
{
    std::string_view const type = item->car()->text();
    if (AxReaderWriter* const made = factory()->createItem(AxString(type), AxString(type), nullptr))
    {
        made->getSelf(item, files, bindings);
        addToEnd(made);
        return item;
    }
    AxDiagnostic fault;
    fault.code = "unknown-type";
    fault.line = item->line();
    fault.column = item->column();
    fault.path = AxReadFrame::path();
    fault.text = "no reader/writer type \"" + std::string(type) + '"';
    AxDiagnostics::report(std::move(fault));
    keepElement(item.get());
    return item;
}

bool AxRwList::keepNameless(AxlObj const* item)
{
    AxlObj const* const head = item->car();
    if (head->isSymbol() || head->isString())
    {
        return false;
    }
    AxReadFrame::reportBadName(head);
    keepElement(item);
    return true;
}

void AxRwList::keepElement(AxlObj const* item)
{
    AxKeptItem kept;
    kept.element = count();
    axAppendCell(kept.text, item);
    rare().kept.push_back(std::move(kept));
    setFlag(KeepsItems, true);
}
