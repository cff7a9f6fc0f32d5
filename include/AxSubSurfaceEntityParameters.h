#pragma once

#include "AxSurfaceEntityParameters.h"

/// A ship that dives.
class ZEDOBJPARAM_API AxSubSurfaceEntityParameters
    : public AxObjectRecordOf<AxSubSurfaceEntityParameters, AxSurfaceEntityParameters, "subsurface-entity-param">
{
public:
    using AxObjectRecordOf::AxObjectRecordOf;
    ~AxSubSurfaceEntityParameters() override;

    virtual double maxDepth() const { return myMaxDepth; }
    virtual void setMaxDepth(double metres) { assignSpecified(myMaxDepth, metres); }

protected:
    AxSubSurfaceEntityParameters(AxSubSurfaceEntityParameters const& other, AxSymbolString name,
                                 AxReaderWriterRegistry* parent)
        : AxSubSurfaceEntityParameters(name, parent)
    {
        AxZedObjectParameters::operator=(other);
    }

private:
    AxRwReal myMaxDepth{{"max-depth", "m", "Largest depth below the surface.", {0.0, axUnbounded}}, 300.0, registry()};
};
