#include "AxPrbRangeList.h"

#include "AxFaultAt.h"
#include "AxNumberText.h"
#include "AxReadFrame.h"
#include "AxReaderWriterFactory.h"
#include "AxStreams.h"
#include "AxlFunctions.h"
#include "AxlObj.h"
#include "axTryNew.h"

#include <cmath>
#include <memory>
#include <unordered_map>

static AxTypeEntry<AxPrbRangeList> const prbRangeListEntry;

/// Tells of each row that a later one of its range has replaced.
static void reportReplacedRows(AxlObj const* rows)
{
    auto const rangeOf = [](AxlObj const* list) { return list->car()->cdr()->car(); };
    auto const keyOf = [](AxlObj const* range) { return range->flonum() + 0.0; }; // one key for both zeros
    std::unordered_map<double, AxlObj const*> lastRows;
    for (AxlObj const* rest = rows; rest->isPair(); rest = rest->cdr())
    {
        if (AxlObj const* const range = rangeOf(rest); range->isNumber())
        {
            lastRows[keyOf(range)] = rest;
        }
    }
    for (; rows->isPair(); rows = rows->cdr())
    {
        AxlObj const* const range = rangeOf(rows);
        auto const found = range->isNumber() ? lastRows.find(keyOf(range)) : lastRows.end();
        if (found != lastRows.end() && found->second != rows)
        {
            std::string text = "the row of range ";
            axAppendReal(text, range->flonum());
            AxDiagnostics::report(axFaultAt(AxSeverity::Info, "replaced-row", rows->car(),
                                            text + " is replaced by a later one of the same range"));
        }
    }
}

/// While the list is being read, once it is long: how its rows stand, if that is known.
static AxReadFrame::Order* orderOf(AxPrbRangeList const& list)
{
    AxReadFrame const* const frame = AxReadFrame::innermost;
    bool const isRead = frame && &frame->record == &list && frame->ordered;
    return isRead && frame->ordered->changeCount == list.changeCount() ? frame->ordered.get() : nullptr;
}

/// The first row whose range is not below, of a list that has such a row.
static AxListItem* firstFrom(AxPrbRangeList const& list, double range)
{
    constexpr int theLongestSearched = 64;
    AxReadFrame* const frame = AxReadFrame::innermost;
    if (frame && &frame->record == &list && list.count() > theLongestSearched)
    {
        if (!orderOf(list))
        {
            auto order = std::make_unique<AxReadFrame::Order>();
            for (AxListItem* item = list.first(); item; item = item->next())
            {
                order->items.emplace_hint(order->items.end(), AxPrbRangeList::row(item)->range(), item);
            }
            order->changeCount = list.changeCount();
            frame->ordered = std::move(order);
        }
        auto const found = frame->ordered->items.lower_bound(range);
        if (found != frame->ordered->items.end())
        {
            return found->second;
        }
        frame->ordered = nullptr; // a host has changed rows meanwhile
    }
    AxListItem* item = list.first();
    while (AxPrbRangeList::row(item)->range() < range)
    {
        item = item->next();
    }
    return item;
}

AxPrbRangeList::AxPrbRangeList(AxPrbRangeList const& other) : AxRwList(other)
{
    copyList(other);
    carryState(other);
}

AxPrbRangeList::~AxPrbRangeList()
{
    AxRwList::removeAndDeleteAll();
}

AxPrbRangeList& AxPrbRangeList::operator=(AxPrbRangeList const& other)
{
    if (this != &other)
    {
        AxRwList::removeAndDeleteAll();
        copyList(other);
        carryState(other);
    }
    return *this;
}

void AxPrbRangeList::copyList(AxPrbRangeList const& other)
{
    if (&other == this)
    {
        return;
    }
    for (AxListItem const* item = other.first(); item; item = item->next())
    {
        if (auto* const copy = axTryNew<AxPrbRangeTableEntry>(*row(item)))
        {
            addTableEntry(copy);
        }
        else
        {
            AxWarn("Memory allocation failed in AxPrbRangeList::copyList()\n");
        }
    }
}

bool AxPrbRangeList::getProbabilities(double range, AxPrbRangeTableEntry* out) const
{
    AxListItem const* item = first();
    while (item && !(row(item)->range() >= range))
    {
        item = item->next();
    }
    bool const isKnown = item != nullptr;
    if (!isKnown)
    {
        item = last();
    }
    if (out)
    {
        AxPrbRangeTableEntry::Refill refill(*out, isKnown ? row(item)->range() : range);
        if (item)
        {
            for (AxRwReal const* outcome : *row(item))
            {
                refill.add(outcome->AxReaderWriter::name(), isKnown ? outcome->value() : 0.0);
            }
        }
    }
    return isKnown;
}

double AxPrbRangeList::minRangeValue() const
{
    return isEmpty() ? 0.0 : row(first())->range();
}

double AxPrbRangeList::maxRangeValue() const
{
    return isEmpty() ? 0.0 : row(last())->range();
}

void AxPrbRangeList::addTableEntry(AxPrbRangeTableEntry const& row)
{
    addTableEntry(axTryNew<AxPrbRangeTableEntry>(row));
}

void AxPrbRangeList::addTableEntry(AxPrbRangeTableEntry* added)
{
    if (!added)
    {
        AxWarn("Memory allocation failed in AxPrbRangeList::addTableEntry()\n");
        return;
    }
    std::unique_ptr<AxPrbRangeTableEntry> owned(added);
    double const range = added->range();
    if (std::isnan(range))
    {
        AxDiagnostics::report(axFaultAt(AxSeverity::Error, "wrong-kind", AxlObj::nilCell(),
                                        "a row whose range is no number cannot be added"));
        return;
    }
    AxListItem* const item = isEmpty() || range > row(last())->range() ? nullptr : firstFrom(*this, range);
    AxPrbRangeTableEntry* const replaced = item && row(item)->range() == range ? row(item) : nullptr;
    AxReadFrame::Order* const order = orderOf(*this);
    addBefore(added, item);
    owned.release();
    AxListItem* const place = item ? item->previous() : last();
    if (replaced)
    {
        remove(replaced, item);
        delete replaced;
    }
    if (order)
    {
        order->items.insert_or_assign(range, place);
        order->changeCount = changeCount();
    }
}

void AxPrbRangeList::getSelf(AxlObjPtr const& expression, AxFilenameList const& files, AxBindingsList const& bindings)
{
    AxRwList::getSelf(expression, files, bindings);
    if (AxcLength(expression) - 1 > count())
    {
        reportReplacedRows(expression->cdr());
    }
}

AxlObjPtr AxPrbRangeList::getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings)
{
    if (!item->cdr()->car()->isNumber())
    {
        AxDiagnostics::report(axFaultAt(AxSeverity::Error, "wrong-kind", item.get(),
                                        "a row expects its range, a number, first; it is not read"));
        keepElement(item.get());
        return item;
    }
    auto* const read = axTryNew<AxPrbRangeTableEntry>(item->car()->symbol(), nullptr);
    if (read)
    {
        read->getSelf(item, files, bindings);
    }
    addTableEntry(read);
    return item;
}

char const* AxPrbRangeList::readerWriterType() const
{
    return "AxPrbRangeList";
}
