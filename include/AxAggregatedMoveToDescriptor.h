#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// Moves a unit that is simulated as one object to a point. Base of the move-along controller.
class ZEDOBJPARAM_API AxAggregatedMoveToDescriptor
    : public AxDescriptorOf<AxAggregatedMoveToDescriptor, AxComponentDescriptor, "aggregated-move-to-descriptor">
{
public:
    AxAggregatedMoveToDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxAggregatedMoveToDescriptor(AxAggregatedMoveToDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxAggregatedMoveToDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxAggregatedMoveToDescriptor() override;

    virtual double atDistance() const { return myAtDistance; }
    virtual void setAtDistance(double distance) { assignSpecified(myAtDistance, distance); }
    virtual bool allowRetrogradeMovement() const { return myAllowRetrogradeMovement; }
    virtual void setAllowRetrogradeMovement(bool allow) { assignSpecified(myAllowRetrogradeMovement, allow); }

private:
    AxRwReal myAtDistance{
        {"at-distance", "m", "Distance at which the destination counts as reached.", axNotNegative}, 50.0, registry()};
    AxRwBoolean myAllowRetrogradeMovement{
        {"allow-retrograde-movement", "", "Whether the unit may move back without turning its front."},
        true,
        registry()};
};
