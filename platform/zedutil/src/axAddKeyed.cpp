#include "axAddKeyed.h"

#include "AxReadFrame.h"

namespace
{
constexpr int theLongestSearched = 64;

AxListItem* search(AxRwList const& list, std::string_view key, AxElementKey keyOf)
{
    AxListItem* item = list.first();
    while (item && keyOf(*AxRwList::element(item)) != key)
    {
        item = item->next();
    }
    return item;
}

/// That of the reading of this very list, once the list is long; else null.
AxReadFrame::Index* indexOf(AxRwList const& list, AxElementKey keyOf)
{
    AxReadFrame* const frame = AxReadFrame::innermost;
    if (!frame || &frame->record != &list || list.count() <= theLongestSearched)
    {
        return nullptr;
    }
    if (!frame->keyed)
    {
        frame->keyed = std::make_unique<AxReadFrame::Index>();
    }
    AxReadFrame::Index& index = *frame->keyed;
    if (index.items.empty() || index.changeCount != list.changeCount())
    {
        index.items.clear();
        for (AxListItem* item = list.first(); item; item = item->next())
        {
            index.items.try_emplace(std::string(keyOf(*AxRwList::element(item))), item);
        }
    }
    return &index;
}
} // namespace

void axAddKeyed(AxRwList& list, AxReaderWriter* element, AxElementKey keyOf)
{
    if (!element)
    {
        return;
    }
    std::string_view const key = keyOf(*element);
    AxReadFrame::Index* const index = indexOf(list, keyOf);
    AxListItem* older = nullptr;
    if (index)
    {
        auto const found = index->items.find(std::string(key));
        older = found != index->items.end() ? found->second : nullptr;
    }
    else
    {
        older = search(list, key, keyOf);
    }
    if (older)
    {
        AxReaderWriter* const replaced = AxRwList::element(older);
        list.AxRwList::remove(replaced, older);
        delete replaced;
    }
    list.AxRwList::add(element);
    if (index)
    {
        index->items.insert_or_assign(std::string(key), list.last());
        index->changeCount = list.changeCount();
    }
}

AxKeyedAdding::AxKeyedAdding(AxRwList& list) : myFrame(std::make_unique<AxReadFrame>(list)) {}

AxKeyedAdding::~AxKeyedAdding() = default;
