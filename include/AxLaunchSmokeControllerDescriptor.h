#pragma once

#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwEntityType.h"
#include "AxRwInt.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// A controller that fires a salvo of smoke grenades to screen the object: an arc of clouds, centred on the threat or
/// the front.
class ZEDOBJPARAM_API AxLaunchSmokeControllerDescriptor
    : public AxDescriptorOf<AxLaunchSmokeControllerDescriptor, AxComponentDescriptor, "launch-smoke-descriptor">
{
public:
    AxLaunchSmokeControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxLaunchSmokeControllerDescriptor(AxLaunchSmokeControllerDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxLaunchSmokeControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxLaunchSmokeControllerDescriptor() override;

    virtual AxEntityType const& detonationType() const { return myDetonationType.value(); }
    virtual void setDetonationType(AxEntityType const& type) { assignSpecified(myDetonationType, type); }
    virtual int numSmokeClouds() const { return myNumSmokeClouds; }
    virtual void setNumSmokeClouds(int clouds) { assignSpecified(myNumSmokeClouds, clouds); }
    virtual double distanceFromEntity() const { return myDistanceFromEntity; }
    virtual void setDistanceFromEntity(double distance) { assignSpecified(myDistanceFromEntity, distance); }
    virtual double interCloudAngle() const { return myInterCloudAngle; }
    virtual void setInterCloudAngle(double angle) { assignSpecified(myInterCloudAngle, angle); }
    virtual double cloudElevationAngle() const { return myCloudElevationAngle; }
    virtual void setCloudElevationAngle(double angle) { assignSpecified(myCloudElevationAngle, angle); }
    virtual AxString const& resourceName() const { return myResourceName.value(); }
    virtual void setResourceName(AxString const& name) { assignSpecified(myResourceName, name); }
    virtual bool simulateSmokeCloudObjects() const { return mySimulateSmokeCloudObjects; }
    virtual void setSimulateSmokeCloudObjects(bool simulate) { assignSpecified(mySimulateSmokeCloudObjects, simulate); }

private:
    AxRwEntityType myDetonationType{{"detonation-type", "", "Entity type of the grenade that the detonation reports."},
                                    registry()};
    AxRwInt myNumSmokeClouds{{"num-smoke-clouds", "", "Clouds in one salvo.", axNotNegative}, 6, registry()};
    AxRwReal myDistanceFromEntity{
        {"distance-from-entity", "m", "Distance from the object at which the clouds appear.", axNotNegative},
        30.0,
        registry()};
    AxRwReal myInterCloudAngle{
        {"inter-cloud-angle", "rad", "Angle in azimuth from one cloud to the next, seen from the object.", axFullTurn},
        axRadians(15.0),
        registry()};
    AxRwReal myCloudElevationAngle{
        {"cloud-elevation-angle", "rad", "Elevation at which the clouds appear, positive up.", axElevation},
        registry()};
    AxRwString myResourceName{{"resource-name", "", "Supply that a salvo uses up; empty: none."}, registry()};
    AxRwBoolean mySimulateSmokeCloudObjects{
        {"simulate-smoke-cloud-objects", "", "Whether each cloud becomes an object of its own."}, true, registry()};
};
