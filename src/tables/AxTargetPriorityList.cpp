#include "AxTargetPriorityList.h"

#include "AxIsForeign.h"
#include "AxReaderWriterFactory.h"
#include "AxStreams.h"
#include "AxTypeLookup.h"
#include "axTryNew.h"

#include <memory>

static AxTypeEntry<AxTargetPriorityList> const targetPriorityListEntry;

AxTargetPriorityList::AxTargetPriorityList(AxTargetPriorityList const& other)
    : AxRwTemplatedListPtr(other.AxReaderWriter::name(), nullptr)
{
    copyList(other);
    carryState(other);
}

AxTargetPriorityList::~AxTargetPriorityList() = default;

AxTargetPriorityList& AxTargetPriorityList::operator=(AxTargetPriorityList const& other)
{
    if (this != &other)
    {
        clear();
        copyList(other);
        carryState(other);
    }
    return *this;
}

void AxTargetPriorityList::copyList(AxTargetPriorityList const& other)
{
    if (&other == this)
    {
        return;
    }
    for (AxTargetPriorityEntry const* entry : other)
    {
        addTargetPriorityEntry(*entry);
    }
}

int AxTargetPriorityList::priority(AxEntityType const& target, AxEntityType* matched) const
{
    auto const* const found = static_cast<AxTargetPriorityEntry const*>(element(lookupTargetPriorityEntry(target)));
    if (!found)
    {
        AxVerbose("No target priority found for %d %d %d %d %d %d %d\n", target.kind(), target.domain(),
                  target.country(), target.category(), target.subcategory(), target.specific(), target.extra());
        return -1;
    }
    if (matched)
    {
        *matched = found->entityType();
    }
    return found->priority();
}

AxTargetPriorityEntry* AxTargetPriorityList::addTargetPriorityEntry(AxEntityType const& type)
{
    auto* const entry = new AxTargetPriorityEntry;
    entry->setEntityType(type);
    return addTargetPriorityEntry(entry);
}

AxTargetPriorityEntry* AxTargetPriorityList::addTargetPriorityEntry(AxTargetPriorityEntry const& entry)
{
    auto* const copy = axTryNew<AxTargetPriorityEntry>(entry);
    if (!copy)
    {
        AxWarn("Memory allocation failed in AxTargetPriorityList::copyList\n");
    }
    return addTargetPriorityEntry(copy);
}

AxTargetPriorityEntry* AxTargetPriorityList::addTargetPriorityEntry(AxTargetPriorityEntry* entry)
{
    addToEnd(entry);
    return entry;
}

AxListItem* AxTargetPriorityList::lookupTargetPriorityEntry(AxEntityType const& target) const
{
    return axLookUpByType<AxTargetPriorityEntry>(*this, target);
}

AxlObjPtr AxTargetPriorityList::getData(AxlObjPtr const& item, AxFilenameList const& files,
                                        AxBindingsList const& bindings)
{
    auto entry = std::make_unique<AxTargetPriorityEntry>();
    if (axIsForeign(item.get(), *entry))
    {
        keepElement(item.get());
        return item;
    }
    entry->getSelf(item, files, bindings);
    addTargetPriorityEntry(entry.release());
    return item;
}

char const* AxTargetPriorityList::readerWriterType() const
{
    return "AxTargetPriorityList";
}

AxSymbolString AxTargetPriorityList::elementWord()
{
    static AxSymbolString const word("entity-priority");
    return word;
}
