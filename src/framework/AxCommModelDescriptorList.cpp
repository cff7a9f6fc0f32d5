#include "AxCommModelDescriptorList.h"

AxCommModelDescriptorList::AxCommModelDescriptorList(AxCommModelDescriptorList const& other,
                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorListTemplate(other.AxReaderWriter::name(), other, registry)
{
}

AxCommModelDescriptorList::~AxCommModelDescriptorList() = default;

AxCommModelDescriptorList* AxCommModelDescriptorList::clone(AxReaderWriterRegistry* registry) const
{
    return new AxCommModelDescriptorList(*this, registry);
}

void AxCommModelDescriptorList::emptyList()
{
    makeEmpty();
}

void AxCommModelDescriptorList::copyList(AxCommModelDescriptorList const& other)
{
    copyAll(other);
}

void AxCommModelDescriptorList::addCommModelDescriptor(AxCommModelDescriptor* descriptor)
{
    addOwned(descriptor);
}

AxCommModelDescriptor* AxCommModelDescriptorList::addCommModelDescriptor(AxCommModelDescriptor const& descriptor)
{
    return addCopy(descriptor);
}

AxCommModelDescriptor* AxCommModelDescriptorList::lookupCommModelDescriptor(AxString const& name) const
{
    return find(name);
}

AxListItem* AxCommModelDescriptorList::lookupCommModelDescriptorItem(AxString const& name) const
{
    return findItem(name);
}

AxlObjPtr AxCommModelDescriptorList::getData(AxlObjPtr const& item, AxFilenameList const& files,
                                             AxBindingsList const& bindings)
{
    if (keepNameless(item.get()))
    {
        return item;
    }
    if (AxCommModelDescriptor* const made = AxCommModelDescriptor::createCommModelDescriptor(item, files, bindings))
    {
        addCommModelDescriptor(made);
    }
    else
    {
        keepElement(item.get());
    }
    return item;
}

char const* AxCommModelDescriptorList::readerWriterType() const
{
    return "AxCommModelDescriptorList";
}
