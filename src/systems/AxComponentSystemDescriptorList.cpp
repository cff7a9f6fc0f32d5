#include "AxComponentSystemDescriptorList.h"

#include "AxReaderWriterFactory.h"
#include "AxlObj.h"
#include "axTryNew.h"

#include <memory>

static AxTypeEntry<AxComponentSystemDescriptorList> const componentSystemDescriptorListEntry;

AxComponentSystemDescriptorList::AxComponentSystemDescriptorList(AxComponentSystemDescriptorList const& other,
                                                                 AxReaderWriterRegistry* registry)
    : AxDescriptorListTemplate(other.AxReaderWriter::name(), other, registry)
{
}

AxComponentSystemDescriptorList::~AxComponentSystemDescriptorList() = default;

AxComponentSystemDescriptorList* AxComponentSystemDescriptorList::clone(AxReaderWriterRegistry* registry) const
{
    return axTryNew<AxComponentSystemDescriptorList>(*this, registry);
}

void AxComponentSystemDescriptorList::emptyList()
{
    makeEmpty();
}

void AxComponentSystemDescriptorList::copyList(AxComponentSystemDescriptorList const& other)
{
    copyAll(other);
}

void AxComponentSystemDescriptorList::addComponentSystemDescriptor(AxComponentSystemDescriptor* descriptor)
{
    addOwned(descriptor);
}

AxComponentSystemDescriptor*
AxComponentSystemDescriptorList::addComponentSystemDescriptor(AxComponentSystemDescriptor const& descriptor)
{
    return addCopy(descriptor);
}

AxComponentSystemDescriptor*
AxComponentSystemDescriptorList::lookupComponentSystemDescriptor(AxString const& name) const
{
    return static_cast<AxComponentSystemDescriptor*>(element(lookupComponentSystemDescriptorItem(name)));
}

AxListItem* AxComponentSystemDescriptorList::lookupComponentSystemDescriptorItem(AxString const& name) const
{
    return findItem(name);
}

AxlObjPtr AxComponentSystemDescriptorList::getData(AxlObjPtr const& item, AxFilenameList const& files,
                                                   AxBindingsList const& bindings)
{
    if (keepNameless(item.get()))
    {
        return item;
    }
    auto descriptor = std::make_unique<AxComponentSystemDescriptor>(item->car()->symbol(), nullptr);
    descriptor->getSelf(item, files, bindings);
    addComponentSystemDescriptor(descriptor.release());
    return item;
}

char const* AxComponentSystemDescriptorList::readerWriterType() const
{
    return "AxComponentSystemDescriptorList";
}
