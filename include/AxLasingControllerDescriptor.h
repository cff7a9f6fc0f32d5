#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwOffsetVector.h"
#include "AxRwReal.h"
#include "AxTargetSelectionCriteria.h"

/// A controller that lights targets with a laser designator, for munitions of the same object or of others.
class ZEDOBJPARAM_API AxLasingControllerDescriptor
    : public AxDescriptorOf<AxLasingControllerDescriptor, AxComponentDescriptor, "laser-controller-descriptor">
{
public:
    AxLasingControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxLasingControllerDescriptor(AxLasingControllerDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxLasingControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxLasingControllerDescriptor() override;

    virtual double waveLength() const { return myWaveLength; }
    virtual void setWaveLength(double length) { assignSpecified(myWaveLength, length); }
    virtual double power() const { return myPower; }
    virtual void setPower(double power) { assignSpecified(myPower, power); }
    virtual int designatorPrfLasingCode() const { return myDesignatorPrfLasingCode; }
    virtual void setDesignatorPrfLasingCode(int code) { assignSpecified(myDesignatorPrfLasingCode, code); }
    virtual double range() const { return myRange; }
    virtual void setRange(double range) { assignSpecified(myRange, range); }
    virtual bool autonomous() const { return myAutonomous; }
    virtual void setAutonomous(bool autonomous) { assignSpecified(myAutonomous, autonomous); }
    virtual AxVector64 const& offset() const { return myOffset.value(); }
    virtual void setOffset(AxVector64 const& offset) { assignSpecified(myOffset, offset); }
    virtual bool integratedWithLauncher() const { return myIntegratedWithLauncher; }
    virtual void setIntegratedWithLauncher(bool integrated) { assignSpecified(myIntegratedWithLauncher, integrated); }
    virtual AxTargetSelectionCriteria const& targetingControl() const { return myTargetingControl; }
    virtual AxTargetSelectionCriteria& targetingControl() { return myTargetingControl; }

private:
    AxRwReal myWaveLength{
        {"wave-length", "um", "Wavelength of the laser beam; 1.064: Nd:YAG.", axNotNegative}, 1.064, registry()};
    AxRwReal myPower{{"power", "W", "Power of the laser beam.", axNotNegative}, 5.0, registry()};
    AxRwInt myDesignatorPrfLasingCode{{"designator-prf-lasing-code",
                                       "",
                                       "Pulse-repetition code by which munitions tell this laser from others.",
                                       {0.0, 65535.0}},
                                      1688,
                                      registry()};
    AxRwReal myRange{{"range", "m", "Farthest target that can be lit.", axNotNegative}, 10000.0, registry()};
    AxRwBoolean myAutonomous{
        {"autonomous", "", "Whether the controller lights targets of its own choice, without an order."}, registry()};
    AxRwOffsetVector myOffset{{"offset", "m", "Place of the designator in the body frame."}, registry()};
    AxRwBoolean myIntegratedWithLauncher{
        {"integrated-with-launcher", "", "Whether the designator serves a launcher on the same object."}, registry()};
    AxTargetSelectionCriteria myTargetingControl{
        {"targeting-control", "", "How targets are preferred, how many are kept, and where they are lit."}, registry()};
};
