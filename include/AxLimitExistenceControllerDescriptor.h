#pragma once

#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// Removes the object from the simulation after a time, for smoke, decoys and other short-lived objects.
class ZEDOBJPARAM_API AxLimitExistenceControllerDescriptor
    : public AxDescriptorOf<AxLimitExistenceControllerDescriptor, AxComponentDescriptor,
                            "limit-existence-controller-descriptor">
{
public:
    AxLimitExistenceControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxLimitExistenceControllerDescriptor(AxLimitExistenceControllerDescriptor const& other,
                                         AxReaderWriterRegistry* registry)
        : AxLimitExistenceControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxLimitExistenceControllerDescriptor() override;

    virtual double duration() const { return myDuration; }
    virtual void setDuration(double duration) { assignSpecified(myDuration, duration); }

private:
    AxRwReal myDuration{{"duration", "s", "Life of the object from its creation.", axNotNegative}, 60.0, registry()};
};
