#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"

/// The warhead of a munition: what sets it off, and what becomes of the munition then.
class ZEDOBJPARAM_API AxWarheadDetonationActuatorDescriptor
    : public AxDescriptorOf<AxWarheadDetonationActuatorDescriptor, AxActuatorComponentDescriptor,
                            "warhead-actuator-descriptor">
{
public:
    AxWarheadDetonationActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxWarheadDetonationActuatorDescriptor(AxWarheadDetonationActuatorDescriptor const& other,
                                          AxReaderWriterRegistry* registry)
        : AxWarheadDetonationActuatorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxWarheadDetonationActuatorDescriptor() override;

    virtual bool detonateOnGroundImpact() const { return myDetonateOnGroundImpact; }
    virtual void setDetonateOnGroundImpact(bool detonate) { assignSpecified(myDetonateOnGroundImpact, detonate); }
    virtual bool detonateOnWaterImpact() const { return myDetonateOnWaterImpact; }
    virtual void setDetonateOnWaterImpact(bool detonate) { assignSpecified(myDetonateOnWaterImpact, detonate); }
    virtual bool detonateOnEntityImpact() const { return myDetonateOnEntityImpact; }
    virtual void setDetonateOnEntityImpact(bool detonate) { assignSpecified(myDetonateOnEntityImpact, detonate); }
    virtual bool removeOnDetonation() const { return myRemoveOnDetonation; }
    virtual void setRemoveOnDetonation(bool remove) { assignSpecified(myRemoveOnDetonation, remove); }
    virtual bool allowDirectHit() const { return myAllowDirectHit; }
    virtual void setAllowDirectHit(bool allow) { assignSpecified(myAllowDirectHit, allow); }

private:
    AxRwBoolean myDetonateOnGroundImpact{
        {"detonate-on-ground-impact", "", "Whether hitting the ground sets the warhead off."}, true, registry()};
    AxRwBoolean myDetonateOnWaterImpact{
        {"detonate-on-water-impact", "", "Whether hitting the water surface sets the warhead off."}, true, registry()};
    AxRwBoolean myDetonateOnEntityImpact{
        {"detonate-on-entity-impact", "", "Whether hitting another object sets the warhead off."}, true, registry()};
    AxRwBoolean myRemoveOnDetonation{
        {"remove-on-detonation", "", "Whether the munition leaves the simulation when it detonates."},
        true,
        registry()};
    AxRwBoolean myAllowDirectHit{
        {"allow-direct-hit", "", "Whether a detonation may count as a direct hit on the object struck."},
        true,
        registry()};
};
