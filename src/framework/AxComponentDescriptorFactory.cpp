#include "AxComponentDescriptorFactory.h"

#include "AxComponentDescriptorFactoryEntry.h"
#include "AxTypeItem.h"
#include "AxUnknownType.h"

#include <unordered_set>
#include <vector>

namespace
{
AxComponentDescriptorFactoryEntry* entryOf(AxListItem const* item)
{
    return static_cast<AxComponentDescriptorFactoryEntry*>(item->data());
}
} // namespace

AxComponentDescriptorFactory::AxComponentDescriptorFactory() = default;

AxComponentDescriptorFactory::AxComponentDescriptorFactory(AxComponentDescriptorFactory const& other) : AxHashlist()
{
    addEntriesOf(other);
}

AxComponentDescriptorFactory::~AxComponentDescriptorFactory()
{
    deleteEntries();
}

AxComponentDescriptorFactory& AxComponentDescriptorFactory::operator=(AxComponentDescriptorFactory const& other)
{
    if (this != &other)
    {
        deleteEntries();
        addEntriesOf(other);
    }
    return *this;
}

void AxComponentDescriptorFactory::addEntriesOf(AxComponentDescriptorFactory const& other)
{
    for (AxListItem const* item = other.first(); item; item = item->next())
    {
        addCreatorFcn(entryOf(item)->typeToCreate(), entryOf(item)->creatorFcn());
    }
}

void AxComponentDescriptorFactory::deleteEntries()
{
    // An entry's type may have been changed since it was added, so that it tells nothing of its key.
    std::unordered_set<AxComponentDescriptorFactoryEntry const*> entries;
    for (AxListItem const* item = first(); item; item = item->next())
    {
        entries.insert(entryOf(item));
    }
    AxHashlist::clear();
    for (AxComponentDescriptorFactoryEntry const* entry : entries)
    {
        delete entry;
    }
}

void AxComponentDescriptorFactory::addCreatorFcn(AxString const& type, AxComponentDescriptor::CreatorFcn creator)
{
    auto* const entry = new AxComponentDescriptorFactoryEntry;
    entry->setTypeToCreate(type);
    entry->setCreatorFcn(creator);
    void* replaced = nullptr;
    add(AxStringHashKey(type), entry, &replaced);
    delete static_cast<AxComponentDescriptorFactoryEntry*>(replaced);
}

AxComponentDescriptor* AxComponentDescriptorFactory::createComponentDescriptor(AxString const& type)
{
    auto const* const entry = static_cast<AxComponentDescriptorFactoryEntry const*>(lookup(AxStringHashKey(type)));
    if (entry && entry->creatorFcn())
    {
        return entry->creatorFcn()();
    }
    std::vector<std::string_view> known;
    for (AxListItem const* item = first(); item; item = item->next())
    {
        known.push_back(entryOf(item)->typeToCreate().string());
    }
    axReportUnknownType(type.string(), AxTypeItem::Scope::cell(),
                        "Can't create component descriptor of type " + type.string() + ".  No creator found.\n", known);
    return nullptr;
}

AxComponentDescriptorFactory* AxComponentDescriptorFactory::create()
{
    return new AxComponentDescriptorFactory;
}
