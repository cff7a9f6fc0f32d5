#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"
#include "AxRwRealAttributeList.h"
#include "AxRwString.h"

/// Plans paths along roads or other linear features of the terrain. Base of the convoy controller.
class ZEDOBJPARAM_API AxRailPathControllerDescriptor
    : public AxDescriptorOf<AxRailPathControllerDescriptor, AxComponentDescriptor, "rail-path-controller-descriptor">
{
public:
    AxRailPathControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxRailPathControllerDescriptor(AxRailPathControllerDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxRailPathControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxRailPathControllerDescriptor() override;

    virtual AxString const& pathFeatureType() const { return myPathFeatureType.value(); }
    virtual void setPathFeatureType(AxString const& type) { assignSpecified(myPathFeatureType, type); }
    virtual bool publishPaths() const { return myPublishPaths; }
    virtual void setPublishPaths(bool publish) { assignSpecified(myPublishPaths, publish); }
    virtual AxRwRealAttributeList const& pathfinderWeightFactors() const { return myPathfinderWeightFactors; }
    virtual AxRwRealAttributeList& pathfinderWeightFactors() { return myPathfinderWeightFactors; }
    virtual double allowableDistance() const { return myAllowableDistance; }
    virtual void setAllowableDistance(double distance) { assignSpecified(myAllowableDistance, distance); }
    virtual double maxSearchRadiusCoefficient() const { return myMaxSearchRadiusCoefficient; }
    virtual void setMaxSearchRadiusCoefficient(double coefficient)
    {
        assignSpecified(myMaxSearchRadiusCoefficient, coefficient);
    }
    virtual double maxSearchRadiusOffset() const { return myMaxSearchRadiusOffset; }
    virtual void setMaxSearchRadiusOffset(double offset) { assignSpecified(myMaxSearchRadiusOffset, offset); }

private:
    AxRwString myPathFeatureType{
        {"path-feature-type", "", "Type of terrain feature that paths follow, such as \"road\"."}, "road", registry()};
    AxRwBoolean myPublishPaths{{"publish-paths", "", "Whether planned paths are shown as routes."}, registry()};
    AxRwRealAttributeList myPathfinderWeightFactors{
        {"pathfinder-weight-factors", "", "Cost factors of the search by attribute name; empty: length alone counts."},
        registry()};
    AxRwReal myAllowableDistance{{"allowable-distance", "m",
                                  "Distance from the path features within which points can be reached.", axNotNegative},
                                 100.0,
                                 registry()};
    AxRwReal myMaxSearchRadiusCoefficient{
        {"max-search-radius-coefficient", "", "Search radius per straight distance to the destination.", axNotNegative},
        1.5,
        registry()};
    AxRwReal myMaxSearchRadiusOffset{
        {"max-search-radius-offset", "m", "Search radius added whatever the distance.", axNotNegative},
        500.0,
        registry()};
};
