#include "AxSimResourceManager.h"

#include "AxReaderWriterFactory.h"
#include "AxTextReader.h"
#include "AxUnknownType.h"
#include "axAddKeyed.h"

#include <memory>

namespace
{
/// Null for a type that is unknown or no resource.
AxSimResource* newResource(std::string_view head)
{
    AxString const type(head);
    std::unique_ptr<AxReaderWriter> made(AxReaderWriter::factory()->createItem(type, type, nullptr));
    auto* const resource = dynamic_cast<AxSimResource*>(made.get());
    if (resource)
    {
        made.release();
    }
    return resource;
}

/// Elements of known types are read without cells.
AxTypeOps managerOps()
{
    AxTypeOps ops = AxTypeOps::withCreator<AxSimResourceManager>();
    ops.readElement =
        [](AxRwList& list, AxTextReader& reader, AxFilenameList const& files, AxBindingsList const& bindings)
    {
        std::string_view const head = reader.peekHead();
        std::unique_ptr<AxSimResource> resource(head.empty() ? nullptr : newResource(head));
        if (!resource)
        {
            return false;
        }
        reader.read(*resource, files, bindings);
        static_cast<AxSimResourceManager&>(list).addResource(resource.release());
        return true;
    };
    return ops;
}

AxTypeEntry<AxSimResourceManager> const theManagerEntry(managerOps());
} // namespace

AxSimResourceManager::AxSimResourceManager(AxSimResourceManager const& other, AxReaderWriterRegistry* registry)
    : AxRwList(other.AxReaderWriter::name(), other, registry)
{
    copyResources(other);
}

AxSimResourceManager::~AxSimResourceManager()
{
    AxRwList::removeAndDeleteAll();
}

AxSimResourceManager& AxSimResourceManager::operator=(AxSimResourceManager const& other)
{
    if (this != &other)
    {
        AxRwList::removeAndDeleteAll();
        copyResources(other);
        carryState(other);
    }
    return *this;
}

void AxSimResourceManager::copyResources(AxSimResourceManager const& other)
{
    for (AxSimResource const* resource : other)
    {
        AxList::add(static_cast<AxReaderWriter*>(resource->clone(nullptr)));
    }
}

AxSimResource* AxSimResourceManager::addResource(AxSimResource const& resource)
{
    AxSimResource* const copy = resource.clone(nullptr);
    addResource(copy);
    return copy;
}

void AxSimResourceManager::addResource(AxSimResource* resource)
{
    if (!resource)
    {
        return;
    }
    if (AxSymbolString const word(resource->readerWriterType()); !(resource->AxReaderWriter::name() == word))
    {
        resource->setName(word.string());
    }
    if (resource->resourceName().isNull())
    {
        AxRwList::addToEnd(resource);
        return;
    }
    axAddKeyed(*this, resource,
               [](AxReaderWriter const& element) -> std::string_view
               { return static_cast<AxSimResource const&>(element).resourceName().string(); });
}

AxSimResource* AxSimResourceManager::findResource(AxString const& resourceName) const
{
    for (AxSimResource* resource : *this)
    {
        if (resource->resourceName() == resourceName)
        {
            return resource;
        }
    }
    return nullptr;
}

bool AxSimResourceManager::removeResource(AxString const& resourceName)
{
    std::unique_ptr<AxSimResource> const leaving(AxSimResourceManager::findResource(resourceName));
    if (leaving)
    {
        AxRwList::remove(leaving.get(), nullptr);
    }
    return leaving != nullptr;
}

AxlObjPtr AxSimResourceManager::getData(AxlObjPtr const& item, AxFilenameList const& files,
                                        AxBindingsList const& bindings)
{
    AxlObj const* const head = item->car();
    if (std::unique_ptr<AxSimResource> resource(newResource(head->text())); resource)
    {
        resource->getSelf(item, files, bindings);
        addResource(resource.release());
        return item;
    }
    std::list<AxString> const names = factory()->typeNames();
    std::vector<std::string_view> known;
    for (AxString const& name : names)
    {
        if (name.string().ends_with("-resource"))
        {
            known.push_back(name.string());
        }
    }
    std::string const type(head->text());
    axReportUnknownType(type, head, "could not create resource of type \"" + type + "\"\n", known);
    keepElement(item.get());
    return item;
}

char const* AxSimResourceManager::readerWriterType() const
{
    return "AxRwResourceManagerType";
}
