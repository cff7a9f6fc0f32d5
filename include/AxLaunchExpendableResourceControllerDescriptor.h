#pragma once

#include "AxAmmoSelectTable.h"
#include "AxDescriptorOf.h"
#include "AxReaderWriterFile.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwOffsetVector.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxRwTaitBryan.h"

/// A controller that launches countermeasures, such as chaff and flares, on order or by itself when a threat comes
/// near.
class ZEDOBJPARAM_API AxLaunchExpendableResourceControllerDescriptor
    : public AxDescriptorOf<AxLaunchExpendableResourceControllerDescriptor, AxComponentDescriptor,
                            "launch-expendable-resource-controller-descriptor">
{
public:
    AxLaunchExpendableResourceControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxLaunchExpendableResourceControllerDescriptor(AxLaunchExpendableResourceControllerDescriptor const& other,
                                                   AxReaderWriterRegistry* registry)
        : AxLaunchExpendableResourceControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxLaunchExpendableResourceControllerDescriptor() override;

    virtual bool autoLaunchEnabled() const { return myAutoLaunchEnabled; }
    virtual void setAutoLaunchEnabled(bool enabled) { assignSpecified(myAutoLaunchEnabled, enabled); }
    virtual double autoLaunchRange() const { return myAutoLaunchRange; }
    virtual void setAutoLaunchRange(double range) { assignSpecified(myAutoLaunchRange, range); }
    virtual double autoLaunchResetTime() const { return myAutoLaunchResetTime; }
    virtual void setAutoLaunchResetTime(double time) { assignSpecified(myAutoLaunchResetTime, time); }
    virtual AxString const& autoLaunchDefaultResource() const { return myAutoLaunchDefaultResource.value(); }
    virtual void setAutoLaunchDefaultResource(AxString const& resource)
    {
        assignSpecified(myAutoLaunchDefaultResource, resource);
    }
    virtual int autoLaunchNumberOfResources() const { return myAutoLaunchNumberOfResources; }
    virtual void setAutoLaunchNumberOfResources(int number) { assignSpecified(myAutoLaunchNumberOfResources, number); }
    virtual double autoLaunchResourceInterval() const { return myAutoLaunchResourceInterval; }
    virtual void setAutoLaunchResourceInterval(double interval)
    {
        assignSpecified(myAutoLaunchResourceInterval, interval);
    }
    virtual AxFilename const& counterMeasuresSelectTableFile() const
    {
        return myCounterMeasuresSelectTableFile.filename();
    }
    virtual void setCounterMeasuresSelectTableFile(AxFilename const& file)
    {
        assignSpecified(myCounterMeasuresSelectTableFile, file);
    }
    virtual AxAmmoSelectTable const& counterMeasuresSelectTable() const { return myCounterMeasuresSelectTable; }
    virtual AxAmmoSelectTable& counterMeasuresSelectTable() { return myCounterMeasuresSelectTable; }
    virtual double projectileStartSpeed() const { return myProjectileStartSpeed; }
    virtual void setProjectileStartSpeed(double speed) { assignSpecified(myProjectileStartSpeed, speed); }
    virtual AxVector64 const& launcherOffset() const { return myLauncherOffset.value(); }
    virtual void setLauncherOffset(AxVector64 const& offset) { assignSpecified(myLauncherOffset, offset); }
    virtual AxTaitBryan const& launchOrientation() const { return myLaunchOrientation.value(); }
    virtual void setLaunchOrientation(AxTaitBryan const& orientation)
    {
        assignSpecified(myLaunchOrientation, orientation);
    }

private:
    AxRwBoolean myAutoLaunchEnabled{{"auto-launch-enabled", "", "Whether threats are answered without an order."},
                                    registry()};
    AxRwReal myAutoLaunchRange{
        {"auto-launch-range", "m", "Distance of a threat at which it is answered.", axNotNegative}, 5000.0, registry()};
    AxRwReal myAutoLaunchResetTime{
        {"auto-launch-reset-time", "s", "Time after an automatic launch before the next one.", axNotNegative},
        10.0,
        registry()};
    AxRwString myAutoLaunchDefaultResource{
        {"auto-launch-default-resource", "", "Supply that is launched when the table has none against the threat."},
        registry()};
    AxRwInt myAutoLaunchNumberOfResources{
        {"auto-launch-number-of-resources", "", "Items launched against one threat.", axNotNegative}, 2, registry()};
    AxRwReal myAutoLaunchResourceInterval{
        {"auto-launch-resource-interval", "s", "Time between the items of one launch.", axNotNegative},
        0.5,
        registry()};
    AxReaderWriterFile myCounterMeasuresSelectTableFile{
        {"counter-measures-select-table-file", "",
         "File from which the countermeasure table is read instead of inline."},
        registry()};
    AxAmmoSelectTable myCounterMeasuresSelectTable{
        {"counter-measures-select-table", "", "Countermeasures that may be used, by type of threat."}, registry()};
    AxRwReal myProjectileStartSpeed{
        {"projectile-start-speed", "m/s", "Speed at which an item leaves the launcher.", axNotNegative},
        30.0,
        registry()};
    AxRwOffsetVector myLauncherOffset{{"launcher-offset", "m", "Place of the launcher in the body frame."}, registry()};
    AxRwTaitBryan myLaunchOrientation{
        {"launch-orientation", "rad", "Direction in which items leave, relative to the body."}, registry()};
};
