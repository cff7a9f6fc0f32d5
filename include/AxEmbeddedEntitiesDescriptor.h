#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"

/// A controller for members of a unit that are controlled from outside, embedded among the simulated ones.
class ZEDOBJPARAM_API AxEmbeddedEntitiesDescriptor
    : public AxDescriptorOf<AxEmbeddedEntitiesDescriptor, AxComponentDescriptor, "embedded-entities-descriptor">
{
public:
    AxEmbeddedEntitiesDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxEmbeddedEntitiesDescriptor(AxEmbeddedEntitiesDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxEmbeddedEntitiesDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxEmbeddedEntitiesDescriptor() override;

    virtual bool useRadioMessaging() const { return myUseRadioMessaging; }
    virtual void setUseRadioMessaging(bool use) { assignSpecified(myUseRadioMessaging, use); }

private:
    AxRwBoolean myUseRadioMessaging{{"use-radio-messaging", "", "Whether orders and reports go by simulated radio."},
                                    registry()};
};
