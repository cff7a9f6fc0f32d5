#pragma once

#include "AxMovingObjectParameters.h"

/// An unpowered weapon in its fall.
class ZEDOBJPARAM_API AxBombParameters
    : public AxObjectRecordOf<AxBombParameters, AxMovingObjectParameters, "bomb-param">
{
public:
    using AxObjectRecordOf::AxObjectRecordOf;
    ~AxBombParameters() override;

    virtual double maxRange() const { return myMaxRange; }
    virtual void setMaxRange(double metres) { assignSpecified(myMaxRange, metres); }
    virtual double maxRangeAltitude() const { return myMaxRangeAltitude; }
    virtual void setMaxRangeAltitude(double metres) { assignSpecified(myMaxRangeAltitude, metres); }
    virtual double cepRadius() const { return myCepRadius; }
    virtual void setCepRadius(double metres) { assignSpecified(myCepRadius, metres); }

protected:
    AxBombParameters(AxBombParameters const& other, AxSymbolString name, AxReaderWriterRegistry* parent)
        : AxBombParameters(name, parent)
    {
        AxZedObjectParameters::operator=(other);
    }

private:
    AxRwReal myMaxRange{{"max-range", "m", "Largest distance flown.", {0.0, axUnbounded}}, 28000.0, registry()};
    AxRwReal myMaxRangeAltitude{
        {"max-range-altitude", "m", "Altitude of release at which that distance is reached.", {0.0, axUnbounded}},
        15240.0,
        registry()};
    AxRwReal myCepRadius{
        {"cep-radius", "m", "Radius around the aim point that holds half of the hits; 0: no miss.", {0.0, axUnbounded}},
        13.0,
        registry()};
};
