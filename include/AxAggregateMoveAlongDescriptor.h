#pragma once

#include "AxAggregatedMoveToDescriptor.h"
#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// Moves a unit along a route and holds its subordinates to their places by speeding up and slowing down.
class ZEDOBJPARAM_API AxAggregateMoveAlongDescriptor
    : public AxDescriptorOf<AxAggregateMoveAlongDescriptor, AxAggregatedMoveToDescriptor,
                            "aggregate-move-along-controller-descriptor">
{
public:
    AxAggregateMoveAlongDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxAggregateMoveAlongDescriptor(AxAggregateMoveAlongDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxAggregateMoveAlongDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxAggregateMoveAlongDescriptor() override;

    virtual double catchupFactor() const { return myCatchupFactor; }
    virtual void setCatchupFactor(double factor) { assignSpecified(myCatchupFactor, factor); }
    virtual double slowdownFactor() const { return mySlowdownFactor; }
    virtual void setSlowdownFactor(double factor) { assignSpecified(mySlowdownFactor, factor); }
    virtual double inPositionTolerance() const { return myInPositionTolerance; }
    virtual void setInPositionTolerance(double tolerance) { assignSpecified(myInPositionTolerance, tolerance); }
    virtual double evaluationInterval() const { return myEvaluationInterval; }
    virtual void setEvaluationInterval(double interval) { assignSpecified(myEvaluationInterval, interval); }
    virtual bool generateRoutesWithRoundedCorners() const { return myGenerateRoutesWithRoundedCorners; }
    virtual void setGenerateRoutesWithRoundedCorners(bool generate)
    {
        assignSpecified(myGenerateRoutesWithRoundedCorners, generate);
    }
    virtual double vertexSpacingAlongRoundedCorners() const { return myVertexSpacingAlongRoundedCorners; }
    virtual void setVertexSpacingAlongRoundedCorners(double spacing)
    {
        assignSpecified(myVertexSpacingAlongRoundedCorners, spacing);
    }
    virtual bool groundClamp() const { return myGroundClamp; }
    virtual void setGroundClamp(bool clamp) { assignSpecified(myGroundClamp, clamp); }

private:
    AxRwReal myCatchupFactor{
        {"catchup-factor", "", "Multiple of the unit's speed for a subordinate that is behind.", axNotNegative},
        1.2,
        registry()};
    AxRwReal mySlowdownFactor{
        {"slowdown-factor", "", "Multiple of the unit's speed for a subordinate that is ahead.", axNotNegative},
        0.8,
        registry()};
    AxRwReal myInPositionTolerance{
        {"in-position-tolerance", "m", "Error of a subordinate's place that is left alone.", axNotNegative},
        10.0,
        registry()};
    AxRwReal myEvaluationInterval{
        {"evaluation-interval", "s", "Time between two looks at the subordinates' places.", axNotNegative},
        5.0,
        registry()};
    AxRwBoolean myGenerateRoutesWithRoundedCorners{
        {"generate-routes-with-rounded-corners", "", "Whether routes of subordinates turn in arcs."}, true, registry()};
    AxRwReal myVertexSpacingAlongRoundedCorners{
        {"vertex-spacing-along-rounded-corners", "m", "Distance between two points of such an arc.", axNotNegative},
        10.0,
        registry()};
    AxRwBoolean myGroundClamp{
        {"ground-clamp", "", "Whether points of the routes are put on the ground."}, true, registry()};
};
