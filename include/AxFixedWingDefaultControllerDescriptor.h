#pragma once

#include "AxDescriptorOf.h"
#include "AxFixedWingPilotControllerDescriptor.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// Keeps a fixed-wing aircraft without orders in an orbit around the place where it is.
class ZEDOBJPARAM_API AxFixedWingDefaultControllerDescriptor
    : public AxDescriptorOf<AxFixedWingDefaultControllerDescriptor, AxFixedWingPilotControllerDescriptor,
                            "fixed-wing-default-controller-descriptor">
{
public:
    AxFixedWingDefaultControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxFixedWingDefaultControllerDescriptor(AxFixedWingDefaultControllerDescriptor const& other,
                                           AxReaderWriterRegistry* registry)
        : AxFixedWingDefaultControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxFixedWingDefaultControllerDescriptor() override;

    virtual double radius() const { return myRadius; }
    virtual void setRadius(double radius) { assignSpecified(myRadius, radius); }
    virtual bool clockwise() const { return myClockwise; }
    virtual void setClockwise(bool clockwise) { assignSpecified(myClockwise, clockwise); }

private:
    AxRwReal myRadius{{"radius", "m", "Radius of the orbit.", axNotNegative}, 5000.0, registry()};
    AxRwBoolean myClockwise{
        {"clockwise", "", "Whether the orbit turns right, seen from above; otherwise left."}, true, registry()};
};
