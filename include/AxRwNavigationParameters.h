#pragma once

#include "AxRecordOf.h"
#include "AxRwReal.h"
#include "AxRwStringList.h"

/// Limits that the path planner keeps for an object.
class ZEDOBJPARAM_API AxRwNavigationParameters : public AxRecordOf<AxRwNavigationParameters, "AxRwNavigationParameters">
{
public:
    using AxRecordOf::AxRecordOf;
    AxRwNavigationParameters(AxSymbolString name, AxRwNavigationParameters const& other,
                             AxReaderWriterRegistry* registry);
    AxRwNavigationParameters(AxRwNavigationParameters const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxRwNavigationParameters() override;
    AxRwNavigationParameters& operator=(AxRwNavigationParameters const& other);

    virtual double clearanceRadius() const { return myClearanceRadius; }
    virtual void setClearanceRadius(double radius) { assignSpecified(myClearanceRadius, radius); }
    virtual double maxStepHeight() const { return myMaxStepHeight; }
    virtual void setMaxStepHeight(double height) { assignSpecified(myMaxStepHeight, height); }
    virtual double maxWaterDepth() const { return myMaxWaterDepth; }
    virtual void setMaxWaterDepth(double depth) { assignSpecified(myMaxWaterDepth, depth); }
    virtual AxRwStringList& avoidFeatureTypes() { return myAvoidFeatureTypes; }
    virtual AxRwStringList const& avoidFeatureTypes() const { return myAvoidFeatureTypes; }

private:
    AxRwReal myClearanceRadius{
        {"clearance-radius", "m", "Free space around a path; 0: from the bounding volume.", {0.0, axUnbounded}},
        registry()};
    AxRwReal myMaxStepHeight{
        {"max-step-height", "m", "Highest edge that is climbed.", {0.0, axUnbounded}}, 0.5, registry()};
    AxRwReal myMaxWaterDepth{{"max-water-depth", "m", "Deepest water that is forded.", {0.0, axUnbounded}}, registry()};
    AxRwStringList myAvoidFeatureTypes{{"avoid-feature-types", "", "Terrain features that paths go around."},
                                       registry()};
};
