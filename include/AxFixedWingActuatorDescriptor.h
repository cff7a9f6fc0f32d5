#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// Flies a fixed-wing aircraft within the limits of its object's record.
class ZEDOBJPARAM_API AxFixedWingActuatorDescriptor
    : public AxDescriptorOf<AxFixedWingActuatorDescriptor, AxActuatorComponentDescriptor,
                            "fix-wing-component-descriptor">
{
public:
    AxFixedWingActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxFixedWingActuatorDescriptor(AxFixedWingActuatorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxFixedWingActuatorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxFixedWingActuatorDescriptor() override;

    virtual double maxThrustAcceleration() const { return myMaxThrustAcceleration; }
    virtual void setMaxThrustAcceleration(double acceleration)
    {
        assignSpecified(myMaxThrustAcceleration, acceleration);
    }
    virtual bool terrainCheck() const { return myTerrainCheck; }
    virtual void setTerrainCheck(bool check) { assignSpecified(myTerrainCheck, check); }
    virtual double dragCoefficient() const { return myDragCoefficient; }
    virtual void setDragCoefficient(double coefficient) { assignSpecified(myDragCoefficient, coefficient); }

private:
    AxRwReal myMaxThrustAcceleration{
        {"max-thrust-acceleration", "m/s2", "Forward acceleration at full thrust, without drag.", axNotNegative},
        20.0,
        registry()};
    AxRwBoolean myTerrainCheck{
        {"terrain-check", "", "Whether the aircraft crashes when it meets the ground."}, true, registry()};
    AxRwReal myDragCoefficient{
        {"drag-coefficient", "", "Drag of the airframe, dimensionless; 0: none.", axNotNegative}, 0.02, registry()};
};
