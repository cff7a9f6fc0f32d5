#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// A turret that turns in azimuth on its object and points what is mounted on it.
class ZEDOBJPARAM_API AxTurretComponentDescriptor
    : public AxDescriptorOf<AxTurretComponentDescriptor, AxActuatorComponentDescriptor, "turret-component-descriptor">
{
public:
    AxTurretComponentDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxTurretComponentDescriptor(AxTurretComponentDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxTurretComponentDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxTurretComponentDescriptor() override;

    virtual double maxSlewRate() const { return myMaxSlewRate; }
    virtual void setMaxSlewRate(double rate) { assignSpecified(myMaxSlewRate, rate); }
    virtual bool fixedAz() const { return myFixedAz; }
    virtual void setFixedAz(bool fixed) { assignSpecified(myFixedAz, fixed); }
    virtual double leftSlewLimit() const { return myLeftSlewLimit; }
    virtual void setLeftSlewLimit(double limit) { assignSpecified(myLeftSlewLimit, limit); }
    virtual double rightSlewLimit() const { return myRightSlewLimit; }
    virtual void setRightSlewLimit(double limit) { assignSpecified(myRightSlewLimit, limit); }

private:
    AxRwReal myMaxSlewRate{
        {"max-slew-rate", "rad/s", "Fastest turn of the turret.", axNotNegative}, axRadians(40.0), registry()};
    AxRwBoolean myFixedAz{{"fixed-az", "", "Whether the turret cannot turn."}, registry()};
    AxRwReal myLeftSlewLimit{{"left-slew-limit", "rad",
                              "Farthest turn to the left, negative; -pi with pi on the right: all round.", axBearing},
                             axRadians(-180.0),
                             registry()};
    AxRwReal myRightSlewLimit{{"right-slew-limit", "rad", "Farthest turn to the right of the body's front.", axBearing},
                              axRadians(180.0),
                              registry()};
};
