#pragma once

#include "AxComponentDescriptor.h"
#include "AxHashlist.h"

/// Makes component descriptors by their exact type names. Owns its entries.
class ZEDOBJPARAM_API AxComponentDescriptorFactory : public AxHashlist
{
public:
    AxComponentDescriptorFactory();
    /// Enters what the other has, in its order.
    AxComponentDescriptorFactory(AxComponentDescriptorFactory const& other);
    ~AxComponentDescriptorFactory() override;
    AxComponentDescriptorFactory& operator=(AxComponentDescriptorFactory const& other);

    // ---- The order of the virtual operations is part of the interface. ----
    /// Enters a type; a type that is known gets the new creator and keeps its place.
    virtual void addCreatorFcn(AxString const& type, AxComponentDescriptor::CreatorFcn creator);
    /// A new descriptor that the caller owns and initialises; null after a warning for an unknown type.
    virtual AxComponentDescriptor* createComponentDescriptor(AxString const& type);
    // ---- End of the virtual operations. ----

    static AxComponentDescriptorFactory* create();

private:
    void addEntriesOf(AxComponentDescriptorFactory const& other);
    void deleteEntries();
};
