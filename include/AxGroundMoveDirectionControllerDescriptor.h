#pragma once

#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// Drives a ground object in a given direction and decides when it turns on the spot instead of in a curve.
class ZEDOBJPARAM_API AxGroundMoveDirectionControllerDescriptor
    : public AxDescriptorOf<AxGroundMoveDirectionControllerDescriptor, AxComponentDescriptor,
                            "ground-move-direction-descriptor">
{
public:
    AxGroundMoveDirectionControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxGroundMoveDirectionControllerDescriptor(AxGroundMoveDirectionControllerDescriptor const& other,
                                              AxReaderWriterRegistry* registry)
        : AxGroundMoveDirectionControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxGroundMoveDirectionControllerDescriptor() override;

    virtual double highSpeedMinPivotAngle() const { return myHighSpeedMinPivotAngle; }
    virtual void setHighSpeedMinPivotAngle(double angle) { assignSpecified(myHighSpeedMinPivotAngle, angle); }
    virtual double lowSpeedMinPivotAngle() const { return myLowSpeedMinPivotAngle; }
    virtual void setLowSpeedMinPivotAngle(double angle) { assignSpecified(myLowSpeedMinPivotAngle, angle); }
    virtual bool pivotOnTurns() const { return myPivotOnTurns; }
    virtual void setPivotOnTurns(bool pivot) { assignSpecified(myPivotOnTurns, pivot); }
    virtual double pivotSpeedCutoff() const { return myPivotSpeedCutoff; }
    virtual void setPivotSpeedCutoff(double cutoff) { assignSpecified(myPivotSpeedCutoff, cutoff); }

private:
    AxRwReal myHighSpeedMinPivotAngle{{"high-speed-min-pivot-angle", "rad",
                                       "Change of heading from which a fast object stops and pivots.", axHalfTurn},
                                      axRadians(90.0),
                                      registry()};
    AxRwReal myLowSpeedMinPivotAngle{
        {"low-speed-min-pivot-angle", "rad", "Change of heading from which a slow object pivots.", axHalfTurn},
        axRadians(30.0),
        registry()};
    AxRwBoolean myPivotOnTurns{{"pivot-on-turns", "", "Whether turns of a route are taken by pivoting."}, registry()};
    AxRwReal myPivotSpeedCutoff{
        {"pivot-speed-cutoff", "m/s", "Speed that separates slow from fast.", axNotNegative}, 2.0, registry()};
};
