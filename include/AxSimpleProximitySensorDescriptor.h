#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwObjectTypeList.h"
#include "AxRwReal.h"

/// Notices objects that come close, by distance alone: neither signature nor line of sight matters.
class ZEDOBJPARAM_API AxSimpleProximitySensorDescriptor
    : public AxDescriptorOf<AxSimpleProximitySensorDescriptor, AxComponentDescriptor,
                            "simple-proximity-sensor-descriptor">
{
public:
    AxSimpleProximitySensorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxSimpleProximitySensorDescriptor(AxSimpleProximitySensorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxSimpleProximitySensorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxSimpleProximitySensorDescriptor() override;

    virtual double defaultProximity() const { return myDefaultProximity; }
    virtual void setDefaultProximity(double proximity) { assignSpecified(myDefaultProximity, proximity); }
    virtual bool detectOnlyHostileForces() const { return myDetectOnlyHostileForces; }
    virtual void setDetectOnlyHostileForces(bool detect) { assignSpecified(myDetectOnlyHostileForces, detect); }
    virtual AxRwObjectTypeList const& objectTypesToDetect() const { return myObjectTypesToDetect; }
    virtual AxRwObjectTypeList& objectTypesToDetect() { return myObjectTypesToDetect; }

private:
    AxRwReal myDefaultProximity{{"default-proximity", "m",
                                 "Distance within which objects are noticed unless another is asked for.",
                                 axNotNegative},
                                100.0,
                                registry()};
    AxRwBoolean myDetectOnlyHostileForces{
        {"detect-only-hostile-forces", "", "Whether objects of other than hostile forces are passed over."},
        registry()};
    AxRwObjectTypeList myObjectTypesToDetect{
        {"object-types-to-detect", "", "Patterns of what is noticed; empty: any type."}, registry()};
};
