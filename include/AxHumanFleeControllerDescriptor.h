#pragma once

#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// Sends a human running from danger to a point picked from a cone that leads away from it.
class ZEDOBJPARAM_API AxHumanFleeControllerDescriptor
    : public AxDescriptorOf<AxHumanFleeControllerDescriptor, AxComponentDescriptor, "human-flee-controller-descriptor">
{
public:
    AxHumanFleeControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxHumanFleeControllerDescriptor(AxHumanFleeControllerDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxHumanFleeControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxHumanFleeControllerDescriptor() override;

    virtual double angleBetweenPoints() const { return myAngleBetweenPoints; }
    virtual void setAngleBetweenPoints(double angle) { assignSpecified(myAngleBetweenPoints, angle); }
    virtual double fleeFromThreshold() const { return myFleeFromThreshold; }
    virtual void setFleeFromThreshold(double threshold) { assignSpecified(myFleeFromThreshold, threshold); }
    virtual double atDistance() const { return myAtDistance; }
    virtual void setAtDistance(double distance) { assignSpecified(myAtDistance, distance); }
    virtual bool showFleePoint() const { return myShowFleePoint; }
    virtual void setShowFleePoint(bool show) { assignSpecified(myShowFleePoint, show); }
    virtual bool allowToFleePastFleePoint() const { return myAllowToFleePastFleePoint; }
    virtual void setAllowToFleePastFleePoint(bool allow) { assignSpecified(myAllowToFleePastFleePoint, allow); }
    virtual double fleeCone() const { return myFleeCone; }
    virtual void setFleeCone(double cone) { assignSpecified(myFleeCone, cone); }

private:
    AxRwReal myAngleBetweenPoints{
        {"angle-between-points", "rad", "Angle between two candidates for the flee point.", axFullTurn},
        axRadians(20.0),
        registry()};
    AxRwReal myFleeFromThreshold{
        {"flee-from-threshold", "m", "Distance to the danger beyond which the human is safe.", axNotNegative},
        50.0,
        registry()};
    AxRwReal myAtDistance{
        {"at-distance", "m", "Distance at which the flee point counts as reached.", axNotNegative}, 0.5, registry()};
    AxRwBoolean myShowFleePoint{{"show-flee-point", "", "Whether the chosen flee point is shown."}, registry()};
    AxRwBoolean myAllowToFleePastFleePoint{
        {"allow-to-flee-past-flee-point", "", "Whether the human runs on past the flee point while in danger."},
        registry()};
    AxRwReal myFleeCone{{"flee-cone", "rad", "Full angle of the cone in which candidates lie.", axFullTurn},
                        axRadians(90.0),
                        registry()};
};
