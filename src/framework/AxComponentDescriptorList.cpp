#include "AxComponentDescriptorList.h"

#include "AxComponentDescriptorFactory.h"
#include "AxComponentDescriptorFactoryEntry.h"
#include "AxReaderWriterFactory.h"
#include "AxStreams.h"
#include "AxTextReader.h"

#include <exception>
#include <memory>

/// Elements of known types are read without cells.
struct AxComponentDescriptorList::Entry : AxTypeEntry<AxComponentDescriptorList>
{
    Entry() : AxTypeEntry(ops()) {}

    static AxTypeOps ops()
    {
        AxTypeOps ops = AxTypeOps::withCreator<AxComponentDescriptorList>();
        ops.readElement = &readElement;
        return ops;
    }
    static bool readElement(AxRwList& list, AxTextReader& reader, AxFilenameList const& files,
                            AxBindingsList const& bindings)
    {
        AxComponentDescriptorFactory* const factory = AxComponentDescriptor::factory();
        AxStringHashKey const type{AxString(reader.peekType())};
        auto const* const entry = static_cast<AxComponentDescriptorFactoryEntry const*>(
            factory && !type.string().isNull() ? factory->lookup(type) : nullptr);
        if (!entry || !entry->creatorFcn())
        {
            return false;
        }
        std::unique_ptr<AxComponentDescriptor> made;
        try
        {
            made.reset(factory->createComponentDescriptor(type.string()));
            if (made)
            {
                made->init();
            }
        }
        catch (...)
        {
            return false; // the way by cells tries again, and reports at the place of the type
        }
        if (!made)
        {
            return false;
        }
        reader.read(*made, files, bindings);
        static_cast<AxComponentDescriptorList&>(list).addComponentDescriptor(made.release());
        return true;
    }
};

AxComponentDescriptorList::Entry const AxComponentDescriptorList::ourEntry;

AxComponentDescriptorList::AxComponentDescriptorList(AxComponentDescriptorList const& other,
                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorListTemplate(other.AxReaderWriter::name(), other, registry)
{
}

AxComponentDescriptorList::~AxComponentDescriptorList() = default;

AxComponentDescriptorList* AxComponentDescriptorList::clone(AxReaderWriterRegistry* registry) const
{
    return new AxComponentDescriptorList(*this, registry);
}

void AxComponentDescriptorList::emptyList()
{
    makeEmpty();
}

void AxComponentDescriptorList::copyList(AxComponentDescriptorList const& other)
{
    copyAll(other);
}

void AxComponentDescriptorList::addComponentDescriptor(AxComponentDescriptor* descriptor)
{
    addOwned(descriptor);
}

AxComponentDescriptor* AxComponentDescriptorList::addComponentDescriptor(AxComponentDescriptor const& descriptor)
{
    return addCopy(descriptor);
}

AxComponentDescriptor* AxComponentDescriptorList::lookupComponentDescriptor(AxString const& name) const
{
    return find(name);
}

AxListItem* AxComponentDescriptorList::lookupComponentDescriptorItem(AxString const& name) const
{
    return findItem(name);
}

AxlObjPtr AxComponentDescriptorList::getData(AxlObjPtr const& item, AxFilenameList const& files,
                                             AxBindingsList const& bindings)
{
    if (keepNameless(item.get()))
    {
        return item;
    }
    if (AxComponentDescriptor* const made = AxComponentDescriptor::createComponentDescriptor(item, files, bindings))
    {
        addComponentDescriptor(made);
    }
    else
    {
        AxWarn("could not create component descriptor\n");
        keepElement(item.get());
    }
    return item;
}

char const* AxComponentDescriptorList::readerWriterType() const
{
    return "AxComponentDescriptorList";
}

char const* AxComponentDescriptorList::xmlType() const
{
    return "componentDescriptors";
}
