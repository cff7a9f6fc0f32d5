#pragma once

#include "AxDescriptorOf.h"
#include "AxRwObjectType.h"
#include "AxRwOffsetVector.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxRwTaitBryan.h"

/// A controller that launches cruise missiles as objects of their own: what is launched, from where on the launcher,
/// and how often.
class ZEDOBJPARAM_API AxCruiseMissileLaunchControllerDescriptor
    : public AxDescriptorOf<AxCruiseMissileLaunchControllerDescriptor, AxComponentDescriptor,
                            "cruise-missile-launch-controller-descriptor">
{
public:
    AxCruiseMissileLaunchControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxCruiseMissileLaunchControllerDescriptor(AxCruiseMissileLaunchControllerDescriptor const& other,
                                              AxReaderWriterRegistry* registry)
        : AxCruiseMissileLaunchControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxCruiseMissileLaunchControllerDescriptor() override;

    virtual AxObjectType const& munitionType() const { return myMunitionType.value(); }
    virtual void setMunitionType(AxObjectType const& type) { assignSpecified(myMunitionType, type); }
    virtual AxString const& munitionName() const { return myMunitionName.value(); }
    virtual void setMunitionName(AxString const& name) { assignSpecified(myMunitionName, name); }
    virtual AxVector64 const& launchOffset() const { return myLaunchOffset.value(); }
    virtual void setLaunchOffset(AxVector64 const& offset) { assignSpecified(myLaunchOffset, offset); }
    virtual AxTaitBryan const& launchOrientation() const { return myLaunchOrientation.value(); }
    virtual void setLaunchOrientation(AxTaitBryan const& orientation)
    {
        assignSpecified(myLaunchOrientation, orientation);
    }
    virtual double initialSpeed() const { return myInitialSpeed; }
    virtual void setInitialSpeed(double speed) { assignSpecified(myInitialSpeed, speed); }
    virtual double minTimeBetweenLaunch() const { return myMinTimeBetweenLaunch; }
    virtual void setMinTimeBetweenLaunch(double time) { assignSpecified(myMinTimeBetweenLaunch, time); }
    virtual AxString const& rangeName() const { return myRangeName.value(); }
    virtual void setRangeName(AxString const& name) { assignSpecified(myRangeName, name); }

private:
    AxRwObjectType myMunitionType{{"munition-type", "", "Object type of the missile that is created."}, registry()};
    AxRwString myMunitionName{{"munition-name", "", "Name of the missile among the launcher's supplies."}, registry()};
    AxRwOffsetVector myLaunchOffset{
        {"launch-offset", "m", "Place in the launcher's body frame at which the missile appears."}, registry()};
    AxRwTaitBryan myLaunchOrientation{
        {"launch-orientation", "rad", "Attitude of the missile at launch, relative to the launcher's body."},
        registry()};
    AxRwReal myInitialSpeed{
        {"initial-speed", "m/s", "Speed of the missile when its booster burns out and flight begins.", axNotNegative},
        50.0,
        registry()};
    AxRwReal myMinTimeBetweenLaunch{
        {"min-time-between-launch", "s", "Shortest time from one launch to the next.", axNotNegative}, 5.0, registry()};
    AxRwString myRangeName{{"range-name", "", "Name under which the missile's range is shown."}, registry()};
};
