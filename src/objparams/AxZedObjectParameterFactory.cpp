#include "AxZedObjectParameterFactory.h"

#include "AxTypeItem.h"
#include "AxUnknownType.h"
#include "AxZedObjectParameterFactoryEntry.h"

#include <vector>

namespace
{
AxZedObjectParameterFactoryEntry* recordEntryOf(AxListItem const* item)
{
    return static_cast<AxZedObjectParameterFactoryEntry*>(item->data());
}
} // namespace

AxZedObjectParameterFactory::AxZedObjectParameterFactory() = default;

AxZedObjectParameterFactory::AxZedObjectParameterFactory(AxZedObjectParameterFactory const& other) : AxHashlist()
{
    addEntriesOf(other);
}

AxZedObjectParameterFactory::~AxZedObjectParameterFactory()
{
    deleteEntries();
}

AxZedObjectParameterFactory& AxZedObjectParameterFactory::operator=(AxZedObjectParameterFactory const& other)
{
    if (this != &other)
    {
        deleteEntries();
        addEntriesOf(other);
    }
    return *this;
}

void AxZedObjectParameterFactory::addEntriesOf(AxZedObjectParameterFactory const& other)
{
    for (AxListItem const* item = other.first(); item; item = item->next())
    {
        AxZedObjectParameterFactoryEntry* const copy = recordEntryOf(item)->clone(*recordEntryOf(item));
        void* replaced = nullptr;
        add(AxStringHashKey(copy->typeToCreate()), copy, &replaced);
        delete static_cast<AxZedObjectParameterFactoryEntry*>(replaced);
    }
}

void AxZedObjectParameterFactory::deleteEntries()
{
    // One entry may stand under several keys. Needs no memory, because destructors come here.
    for (AxListItem* item = first(); item; item = item->next())
    {
        auto* const entry = static_cast<AxZedObjectParameterFactoryEntry*>(item->data());
        for (AxListItem* later = item->next(); later; later = later->next())
        {
            later->setData(later->data() == entry ? nullptr : later->data());
        }
        delete entry;
    }
    AxHashlist::clear();
}

void AxZedObjectParameterFactory::addCreatorFcn(AxString const& name, AxZedObjectParameters::CreatorFcn creator)
{
    auto* const entry = new AxZedObjectParameterFactoryEntry;
    entry->setTypeToCreate(name);
    entry->setCreatorFcn(creator);
    void* replaced = nullptr;
    add(AxStringHashKey(entry->typeToCreate()), entry, &replaced);
    delete static_cast<AxZedObjectParameterFactoryEntry*>(replaced);
}

AxZedObjectParameters* AxZedObjectParameterFactory::createParameters(AxString const& name, AxEnvironmentPtr env,
                                                                     AxEnvValuePtr* node)
{
    auto const* const entry = static_cast<AxZedObjectParameterFactoryEntry const*>(lookup(AxStringHashKey(name)));
    if (entry && entry->creatorFcn())
    {
        AxlObj const* const cell = AxTypeItem::Scope::cell();
        bool isThrown = true;
        AxZedObjectParameters* const made = AxTypeItem::made(
            cell, name,
            [&]
            {
                AxZedObjectParameters* const answered = entry->creatorFcn()(env, node);
                isThrown = false;
                return answered;
            },
            [&](AxZedObjectParameters& record) { record.setParameterType(name); });
        if (!made && !isThrown)
        {
            AxTypeItem::reportCreationFailed(cell, name.string(), "no record was made");
        }
        return made;
    }
    std::vector<std::string_view> known;
    for (AxListItem const* item = first(); item; item = item->next())
    {
        known.push_back(recordEntryOf(item)->typeToCreate().string());
    }
    axReportUnknownType(name.string(), AxTypeItem::Scope::cell(), unknownTypeLine(name), known);
    return nullptr;
}

std::string AxZedObjectParameterFactory::unknownTypeLine(AxString const& name)
{
    return "Can't create parameters of type " + name.string() + ".  No creator found.\n";
}

bool AxZedObjectParameterFactory::knows(AxString const& name) const
{
    return lookup(AxStringHashKey(name)) != nullptr;
}

std::list<AxString> AxZedObjectParameterFactory::typeNames() const
{
    std::list<AxString> names;
    for (AxListItem const* item = first(); item; item = item->next())
    {
        names.push_back(recordEntryOf(item)->typeToCreate());
    }
    return names;
}

AxZedObjectParameterFactory* AxZedObjectParameterFactory::create()
{
    return new (std::nothrow) AxZedObjectParameterFactory;
}
