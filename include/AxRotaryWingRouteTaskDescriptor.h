#pragma once

#include "AxDescriptorOf.h"
#include "AxRotaryWingTaskDescriptor.h"
#include "AxRwReal.h"

/// Flies a helicopter along a route, steering for a point ahead of it.
class ZEDOBJPARAM_API AxRotaryWingRouteTaskDescriptor
    : public AxDescriptorOf<AxRotaryWingRouteTaskDescriptor, AxRotaryWingTaskDescriptor,
                            "rotary-wing-route-task-descriptor">
{
public:
    AxRotaryWingRouteTaskDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxRotaryWingRouteTaskDescriptor(AxRotaryWingRouteTaskDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxRotaryWingRouteTaskDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxRotaryWingRouteTaskDescriptor() override;

    virtual double routeTransitionRadius() const { return myRouteTransitionRadius; }
    virtual void setRouteTransitionRadius(double radius) { assignSpecified(myRouteTransitionRadius, radius); }
    virtual double routeXGain() const { return myRouteXGain; }
    virtual void setRouteXGain(double gain) { assignSpecified(myRouteXGain, gain); }
    virtual double routeYGain() const { return myRouteYGain; }
    virtual void setRouteYGain(double gain) { assignSpecified(myRouteYGain, gain); }
    virtual double routeZGain() const { return myRouteZGain; }
    virtual void setRouteZGain(double gain) { assignSpecified(myRouteZGain, gain); }
    virtual double routeLookaheadFactor() const { return myRouteLookaheadFactor; }
    virtual void setRouteLookaheadFactor(double factor) { assignSpecified(myRouteLookaheadFactor, factor); }

private:
    AxRwReal myRouteTransitionRadius{
        {"route-transition-radius", "m", "Distance to a waypoint at which the next one is steered for.", axNotNegative},
        200.0,
        registry()};
    AxRwReal myRouteXGain{
        {"route-x-gain", "", "Multiplier of the correction along the flight, body x.", axNotNegative}, 1.0, registry()};
    AxRwReal myRouteYGain{
        {"route-y-gain", "", "Multiplier of the correction across the flight, body y.", axNotNegative},
        1.0,
        registry()};
    AxRwReal myRouteZGain{
        {"route-z-gain", "", "Multiplier of the correction in height, body z.", axNotNegative}, 1.0, registry()};
    AxRwReal myRouteLookaheadFactor{{"route-lookahead-factor", "s",
                                     "Flight time at present speed to the point that is steered for.", axNotNegative},
                                    2.0,
                                    registry()};
};
