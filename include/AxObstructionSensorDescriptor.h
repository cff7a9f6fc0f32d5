#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwObjectTypeList.h"
#include "AxRwReal.h"
#include "AxRwStringList.h"

/// Looks for objects and terrain features in the way ahead, so that movement can stop or steer around them.
class ZEDOBJPARAM_API AxObstructionSensorDescriptor
    : public AxDescriptorOf<AxObstructionSensorDescriptor, AxComponentDescriptor, "obstruction-sensor-descriptor">
{
public:
    AxObstructionSensorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxObstructionSensorDescriptor(AxObstructionSensorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxObstructionSensorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxObstructionSensorDescriptor() override;

    virtual double lateralClearance() const { return myLateralClearance; }
    virtual void setLateralClearance(double clearance) { assignSpecified(myLateralClearance, clearance); }
    virtual double stoppingDistanceFactor() const { return myStoppingDistanceFactor; }
    virtual void setStoppingDistanceFactor(double factor) { assignSpecified(myStoppingDistanceFactor, factor); }
    virtual bool checkObstructionsIfEmbarked() const { return myCheckObstructionsIfEmbarked; }
    virtual void setCheckObstructionsIfEmbarked(bool check) { assignSpecified(myCheckObstructionsIfEmbarked, check); }
    virtual AxRwObjectTypeList const& objectTypes() const { return myObjectTypes; }
    virtual AxRwObjectTypeList& objectTypes() { return myObjectTypes; }
    virtual AxRwStringList const& featureTypesToAvoid() const { return myFeatureTypesToAvoid; }
    virtual AxRwStringList& featureTypesToAvoid() { return myFeatureTypesToAvoid; }

private:
    AxRwReal myLateralClearance{
        {"lateral-clearance", "m", "Room to either side that must be free of obstructions.", axNotNegative},
        2.0,
        registry()};
    AxRwReal myStoppingDistanceFactor{
        {"stopping-distance-factor", "", "Multiple of the stopping distance that is looked ahead.", axNotNegative},
        1.5,
        registry()};
    AxRwBoolean myCheckObstructionsIfEmbarked{
        {"check-obstructions-if-embarked", "", "Whether the way is also watched while riding in another object."},
        registry()};
    AxRwObjectTypeList myObjectTypes{{"object-types", "", "Patterns of objects that obstruct; empty: any type."},
                                     registry()};
    AxRwStringList myFeatureTypesToAvoid{
        {"feature-types-to-avoid", "", "Types of terrain features that obstruct; empty: none."}, registry()};
};
