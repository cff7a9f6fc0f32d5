#pragma once

#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwInt.h"
#include "AxRwObjectType.h"
#include "AxRwOffsetVector.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// A controller that launches munitions which home on a target lit by a laser designator with the same code.
class ZEDOBJPARAM_API AxLaserGuidedLauncherControllerDescriptor
    : public AxDescriptorOf<AxLaserGuidedLauncherControllerDescriptor, AxComponentDescriptor,
                            "laser-guided-launcher-controller-descriptor">
{
public:
    AxLaserGuidedLauncherControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxLaserGuidedLauncherControllerDescriptor(AxLaserGuidedLauncherControllerDescriptor const& other,
                                              AxReaderWriterRegistry* registry)
        : AxLaserGuidedLauncherControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxLaserGuidedLauncherControllerDescriptor() override;

    virtual AxObjectType const& munitionType() const { return myMunitionType.value(); }
    virtual void setMunitionType(AxObjectType const& type) { assignSpecified(myMunitionType, type); }
    virtual AxString const& munitionName() const { return myMunitionName.value(); }
    virtual void setMunitionName(AxString const& name) { assignSpecified(myMunitionName, name); }
    virtual AxVector64 const& launchOffset() const { return myLaunchOffset.value(); }
    virtual void setLaunchOffset(AxVector64 const& offset) { assignSpecified(myLaunchOffset, offset); }
    virtual double minTimeBetweenLaunch() const { return myMinTimeBetweenLaunch; }
    virtual void setMinTimeBetweenLaunch(double time) { assignSpecified(myMinTimeBetweenLaunch, time); }
    virtual double maxAngleOffBoresight() const { return myMaxAngleOffBoresight; }
    virtual void setMaxAngleOffBoresight(double angle) { assignSpecified(myMaxAngleOffBoresight, angle); }
    virtual int designatorCode() const { return myDesignatorCode; }
    virtual void setDesignatorCode(int code) { assignSpecified(myDesignatorCode, code); }
    virtual AxString const& rangeName() const { return myRangeName.value(); }
    virtual void setRangeName(AxString const& name) { assignSpecified(myRangeName, name); }

private:
    AxRwObjectType myMunitionType{{"munition-type", "", "Object type of the munition that is created."}, registry()};
    AxRwString myMunitionName{{"munition-name", "", "Name of the munition among the launcher's supplies."}, registry()};
    AxRwOffsetVector myLaunchOffset{
        {"launch-offset", "m", "Place in the launcher's body frame at which the munition appears."}, registry()};
    AxRwReal myMinTimeBetweenLaunch{
        {"min-time-between-launch", "s", "Shortest time from one launch to the next.", axNotNegative}, 5.0, registry()};
    AxRwReal myMaxAngleOffBoresight{
        {"max-angle-off-boresight", "rad", "Largest angle between boresight and laser spot at launch.", axHalfTurn},
        axRadians(30.0),
        registry()};
    AxRwInt myDesignatorCode{
        {"designator-code", "", "Pulse-repetition code of the laser that the munition follows.", {0.0, 65535.0}},
        1688,
        registry()};
    AxRwString myRangeName{{"range-name", "", "Name under which the munition's range is shown."}, registry()};
};
