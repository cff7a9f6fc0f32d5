#pragma once

#include "AxDescriptorOf.h"
#include "AxRailPathControllerDescriptor.h"
#include "AxRwReal.h"

/// Leads a convoy along roads and keeps the interval between its vehicles.
class ZEDOBJPARAM_API AxConvoyDescriptor
    : public AxDescriptorOf<AxConvoyDescriptor, AxRailPathControllerDescriptor, "convoy-descriptor">
{
public:
    AxConvoyDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxConvoyDescriptor(AxConvoyDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxConvoyDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxConvoyDescriptor() override;

    virtual double separationDistance() const { return mySeparationDistance; }
    virtual void setSeparationDistance(double distance) { assignSpecified(mySeparationDistance, distance); }
    virtual double separationTolerance() const { return mySeparationTolerance; }
    virtual void setSeparationTolerance(double tolerance) { assignSpecified(mySeparationTolerance, tolerance); }

private:
    AxRwReal mySeparationDistance{
        {"separation-distance", "m", "Interval between two vehicles of the convoy.", axNotNegative}, 50.0, registry()};
    AxRwReal mySeparationTolerance{
        {"separation-tolerance", "m", "Error of the interval that is left alone.", axNotNegative}, 10.0, registry()};
};
