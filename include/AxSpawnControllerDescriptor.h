#pragma once

#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// A controller that makes objects appear at sources and takes them away at sinks, for background traffic.
class ZEDOBJPARAM_API AxSpawnControllerDescriptor
    : public AxDescriptorOf<AxSpawnControllerDescriptor, AxComponentDescriptor, "spawn-controller-descriptor">
{
public:
    AxSpawnControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxSpawnControllerDescriptor(AxSpawnControllerDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxSpawnControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxSpawnControllerDescriptor() override;

    virtual double sinkPointDeleteRadius() const { return mySinkPointDeleteRadius; }
    virtual void setSinkPointDeleteRadius(double radius) { assignSpecified(mySinkPointDeleteRadius, radius); }

private:
    AxRwReal mySinkPointDeleteRadius{
        {"sink-point-delete-radius", "m", "Distance to the sink point at which an object is removed.", axNotNegative},
        5.0,
        registry()};
};
