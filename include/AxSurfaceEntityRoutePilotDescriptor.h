#pragma once

#include "AxDescriptorOf.h"
#include "AxSurfaceEntityPilotControllerDescriptor.h"

/// Steers a surface vessel along a route. Takes the values of the surface pilot only.
class ZEDOBJPARAM_API AxSurfaceEntityRoutePilotDescriptor
    : public AxDescriptorOf<AxSurfaceEntityRoutePilotDescriptor, AxSurfaceEntityPilotControllerDescriptor,
                            "surface-entity-route-pilot-controller-descriptor">
{
public:
    AxSurfaceEntityRoutePilotDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxSurfaceEntityRoutePilotDescriptor(AxSurfaceEntityRoutePilotDescriptor const& other,
                                        AxReaderWriterRegistry* registry)
        : AxSurfaceEntityRoutePilotDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxSurfaceEntityRoutePilotDescriptor() override;
};
