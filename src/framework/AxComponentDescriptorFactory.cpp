#include "AxComponentDescriptorFactory.h"

#include "AxComponentDescriptorFactoryEntry.h"
#include "AxTypeItem.h"
#include "AxUnknownType.h"

#include <vector>

namespace
{
AxComponentDescriptorFactoryEntry* descriptorEntryOf(AxListItem const* item)
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
        addCreatorFcn(descriptorEntryOf(item)->typeToCreate(), descriptorEntryOf(item)->creatorFcn());
    }
}

void AxComponentDescriptorFactory::deleteEntries()
{
    // One entry may stand under several keys. Needs no memory, because destructors come here.
    for (AxListItem* item = first(); item; item = item->next())
    {
        auto* const entry = static_cast<AxComponentDescriptorFactoryEntry*>(item->data());
        for (AxListItem* later = item->next(); later; later = later->next())
        {
            later->setData(later->data() == entry ? nullptr : later->data());
        }
        delete entry;
    }
    AxHashlist::clear();
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
        known.push_back(descriptorEntryOf(item)->typeToCreate().string());
    }
    axReportUnknownType(type.string(), AxTypeItem::Scope::cell(),
                        "Can't create component descriptor of type " + type.string() + ".  No creator found.\n", known);
    return nullptr;
}

AxComponentDescriptorFactory* AxComponentDescriptorFactory::create()
{
    return new AxComponentDescriptorFactory;
}
