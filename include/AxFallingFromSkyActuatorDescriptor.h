#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// Drops an object that nothing holds up, such as a shot-down aircraft, slowed by drag, to the ground or the sea.
class ZEDOBJPARAM_API AxFallingFromSkyActuatorDescriptor
    : public AxDescriptorOf<AxFallingFromSkyActuatorDescriptor, AxActuatorComponentDescriptor,
                            "fall-from-sky-actuator-descriptor">
{
public:
    AxFallingFromSkyActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxFallingFromSkyActuatorDescriptor(AxFallingFromSkyActuatorDescriptor const& other,
                                       AxReaderWriterRegistry* registry)
        : AxFallingFromSkyActuatorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxFallingFromSkyActuatorDescriptor() override;

    virtual double dragCoefficient() const { return myDragCoefficient; }
    virtual void setDragCoefficient(double coefficient) { assignSpecified(myDragCoefficient, coefficient); }
    virtual bool checkForSplashdown() const { return myCheckForSplashdown; }
    virtual void setCheckForSplashdown(bool check) { assignSpecified(myCheckForSplashdown, check); }

private:
    AxRwReal myDragCoefficient{
        {"drag-coefficient", "", "Drag of the falling body, dimensionless; 0: none.", axNotNegative}, 0.5, registry()};
    AxRwBoolean myCheckForSplashdown{
        {"check-for-splashdown", "", "Whether falling into water is told from falling on land."}, true, registry()};
};
