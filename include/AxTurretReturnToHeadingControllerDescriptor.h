#pragma once

#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// A controller that turns an idle turret back to its resting direction.
class ZEDOBJPARAM_API AxTurretReturnToHeadingControllerDescriptor
    : public AxDescriptorOf<AxTurretReturnToHeadingControllerDescriptor, AxComponentDescriptor,
                            "turret-return-to-heading-controller-descriptor">
{
public:
    AxTurretReturnToHeadingControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxTurretReturnToHeadingControllerDescriptor(AxTurretReturnToHeadingControllerDescriptor const& other,
                                                AxReaderWriterRegistry* registry)
        : AxTurretReturnToHeadingControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxTurretReturnToHeadingControllerDescriptor() override;

    virtual double neutralHeading() const { return myNeutralHeading; }
    virtual void setNeutralHeading(double heading) { assignSpecified(myNeutralHeading, heading); }
    virtual double startDelay() const { return myStartDelay; }
    virtual void setStartDelay(double delay) { assignSpecified(myStartDelay, delay); }

private:
    AxRwReal myNeutralHeading{{"neutral-heading",
                               "rad",
                               "Resting direction of the turret, relative to the body's front.",
                               {axRadians(-180.0), axRadians(360.0)}},
                              registry()};
    AxRwReal myStartDelay{
        {"start-delay", "s", "Time without a target before the turret turns back.", axNotNegative}, 10.0, registry()};
};
