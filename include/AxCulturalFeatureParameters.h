#pragma once

#include "AxMovingObjectParameters.h"

/// A building or another thing that people put into the terrain. It takes no place in an order of battle, and a new
/// record says so.
class ZEDOBJPARAM_API AxCulturalFeatureParameters
    : public AxObjectRecordOf<AxCulturalFeatureParameters, AxMovingObjectParameters, "cultural-feature-param">
{
public:
    AxCulturalFeatureParameters(AxSymbolString name, AxReaderWriterRegistry* parent, AxEnvironmentPtr const& env = {},
                                AxEnvValuePtr const* node = nullptr);
    ~AxCulturalFeatureParameters() override;

    virtual bool gravityAligned() const { return myGravityAligned; }
    virtual void setGravityAligned(bool aligned) { assignSpecified(myGravityAligned, aligned); }

protected:
    AxCulturalFeatureParameters(AxCulturalFeatureParameters const& other, AxSymbolString name,
                                AxReaderWriterRegistry* parent)
        : AxCulturalFeatureParameters(name, parent)
    {
        AxZedObjectParameters::operator=(other);
    }

private:
    AxRwBoolean myGravityAligned{
        {"gravity-aligned", "", "Whether it stands upright whatever the slope."}, true, registry()};
};
