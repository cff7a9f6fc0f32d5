#pragma once

#include "AxMovingObjectParameters.h"

/// A ship or boat. `draft` tells how deep its bounding volume reaches below the waterline.
class ZEDOBJPARAM_API AxSurfaceEntityParameters
    : public AxObjectRecordOf<AxSurfaceEntityParameters, AxMovingObjectParameters, "surface-entity-param">
{
public:
    AxSurfaceEntityParameters(AxSymbolString name, AxReaderWriterRegistry* parent, AxEnvironmentPtr const& env = {},
                              AxEnvValuePtr const* node = nullptr);
    ~AxSurfaceEntityParameters() override;

    /// The defaults of ships for what all moving objects have. The constructor calls it.
    virtual void setDefaults();

protected:
    AxSurfaceEntityParameters(AxSurfaceEntityParameters const& other, AxSymbolString name,
                              AxReaderWriterRegistry* parent)
        : AxSurfaceEntityParameters(name, parent)
    {
        AxZedObjectParameters::operator=(other);
    }
};
