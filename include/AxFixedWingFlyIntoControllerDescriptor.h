#pragma once

#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxFixedWingPilotControllerDescriptor.h"
#include "AxRwReal.h"

/// Flies a fixed-wing aircraft into a target, as cruise missiles and drones do: first above it, then straight at it.
class ZEDOBJPARAM_API AxFixedWingFlyIntoControllerDescriptor
    : public AxDescriptorOf<AxFixedWingFlyIntoControllerDescriptor, AxFixedWingPilotControllerDescriptor,
                            "fixed-wing-fly-into-controller-descriptor">
{
public:
    AxFixedWingFlyIntoControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxFixedWingFlyIntoControllerDescriptor(AxFixedWingFlyIntoControllerDescriptor const& other,
                                           AxReaderWriterRegistry* registry)
        : AxFixedWingFlyIntoControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxFixedWingFlyIntoControllerDescriptor() override;

    virtual double directFlyElevationAngle() const { return myDirectFlyElevationAngle; }
    virtual void setDirectFlyElevationAngle(double angle) { assignSpecified(myDirectFlyElevationAngle, angle); }
    virtual double directFlyRange() const { return myDirectFlyRange; }
    virtual void setDirectFlyRange(double range) { assignSpecified(myDirectFlyRange, range); }

private:
    AxRwReal myDirectFlyElevationAngle{{"direct-fly-elevation-angle", "rad",
                                        "Angle of the target below the horizon from which it is flown at directly.",
                                        axElevation},
                                       axRadians(30.0),
                                       registry()};
    AxRwReal myDirectFlyRange{
        {"direct-fly-range", "m", "Distance to the target within which it is flown at directly.", axNotNegative},
        2000.0,
        registry()};
};
