#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// Sends a human to the nearest place that hides it from the enemy, searched on a grid of posts.
class ZEDOBJPARAM_API AxHumanCoverPointControllerDescriptor
    : public AxDescriptorOf<AxHumanCoverPointControllerDescriptor, AxComponentDescriptor,
                            "human-cover-point-controller-descriptor">
{
public:
    AxHumanCoverPointControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxHumanCoverPointControllerDescriptor(AxHumanCoverPointControllerDescriptor const& other,
                                          AxReaderWriterRegistry* registry)
        : AxHumanCoverPointControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxHumanCoverPointControllerDescriptor() override;

    virtual double atDistance() const { return myAtDistance; }
    virtual void setAtDistance(double distance) { assignSpecified(myAtDistance, distance); }
    virtual double postSpacing() const { return myPostSpacing; }
    virtual void setPostSpacing(double spacing) { assignSpecified(myPostSpacing, spacing); }
    virtual bool showCoverPoint() const { return myShowCoverPoint; }
    virtual void setShowCoverPoint(bool show) { assignSpecified(myShowCoverPoint, show); }
    virtual bool performTwoPasses() const { return myPerformTwoPasses; }
    virtual void setPerformTwoPasses(bool perform) { assignSpecified(myPerformTwoPasses, perform); }
    virtual double postSpacingOnSecondPass() const { return myPostSpacingOnSecondPass; }
    virtual void setPostSpacingOnSecondPass(double spacing) { assignSpecified(myPostSpacingOnSecondPass, spacing); }

private:
    AxRwReal myAtDistance{
        {"at-distance", "m", "Distance at which the cover point counts as reached.", axNotNegative}, 0.5, registry()};
    AxRwReal myPostSpacing{
        {"post-spacing", "m", "Distance between two posts of the search.", axNotNegative}, 2.0, registry()};
    AxRwBoolean myShowCoverPoint{{"show-cover-point", "", "Whether the chosen cover point is shown."}, registry()};
    AxRwBoolean myPerformTwoPasses{
        {"perform-two-passes", "", "Whether the best post is searched around again on a finer grid."},
        true,
        registry()};
    AxRwReal myPostSpacingOnSecondPass{
        {"post-spacing-on-second-pass", "m", "Distance between two posts of the finer grid.", axNotNegative},
        1.0,
        registry()};
};
