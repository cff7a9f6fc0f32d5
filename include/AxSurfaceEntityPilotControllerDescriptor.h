#pragma once

#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// Steers a surface vessel to a point, gently rather than at its limits. Base of the route pilot.
class ZEDOBJPARAM_API AxSurfaceEntityPilotControllerDescriptor
    : public AxDescriptorOf<AxSurfaceEntityPilotControllerDescriptor, AxComponentDescriptor,
                            "surface-entity-pilot-controller-descriptor">
{
public:
    using AxDescriptorOf::AxDescriptorOf;
    AxSurfaceEntityPilotControllerDescriptor(AxSurfaceEntityPilotControllerDescriptor const& other,
                                             AxReaderWriterRegistry* registry)
        : AxSurfaceEntityPilotControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxSurfaceEntityPilotControllerDescriptor() override;

    virtual double atDistance() const { return myAtDistance; }
    virtual void setAtDistance(double distance) { assignSpecified(myAtDistance, distance); }
    virtual double nearDistance() const { return myNearDistance; }
    virtual void setNearDistance(double distance) { assignSpecified(myNearDistance, distance); }
    virtual double normalAccelerationFraction() const { return myNormalAccelerationFraction; }
    virtual void setNormalAccelerationFraction(double fraction)
    {
        assignSpecified(myNormalAccelerationFraction, fraction);
    }
    virtual double normalLateralAccelerationFraction() const { return myNormalLateralAccelerationFraction; }
    virtual void setNormalLateralAccelerationFraction(double fraction)
    {
        assignSpecified(myNormalLateralAccelerationFraction, fraction);
    }

private:
    AxRwReal myAtDistance{
        {"at-distance", "m", "Distance at which the destination counts as reached.", axNotNegative}, 50.0, registry()};
    AxRwReal myNearDistance{
        {"near-distance", "m", "Distance to the destination at which the vessel slows down.", axNotNegative},
        500.0,
        registry()};
    AxRwReal myNormalAccelerationFraction{
        {"normal-acceleration-fraction", "", "Share of the largest acceleration in normal steering.", axFraction},
        0.5,
        registry()};
    AxRwReal myNormalLateralAccelerationFraction{{"normal-lateral-acceleration-fraction", "",
                                                  "Share of the largest lateral acceleration in normal steering.",
                                                  axFraction},
                                                 0.5,
                                                 registry()};
};
