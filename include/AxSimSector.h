#pragma once

#include "AxDcm.h"
#include "AxRecordOf.h"
#include "AxRwReal.h"
#include "AxVector64.h"

/// A horizontal sector in the body frame: a centre direction and a full width, radians, positive to the right.
///
/// An angle is tested by its azimuth alone, a direction by its true angle to the centre direction; the two agree for
/// level directions. Edges are inside.
class ZEDOBJPARAM_API AxSimSector : public AxRecordOf<AxSimSector, "AxSimSector">
{
public:
    using AxRecordOf::AxRecordOf;
    AxSimSector(AxSymbolString name, AxSimSector const& other, AxReaderWriterRegistry* registry);
    AxSimSector(AxSimSector const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxSimSector() override;
    AxSimSector& operator=(AxSimSector const& other);
    bool operator==(AxSimSector const& other) const { return AxReaderWriter::operator==(other); }

    /// Stores both as given.
    virtual void setSector(double center, double size);
    virtual double sectorCenter() const { return mySectorCenter; }
    virtual double sectorSize() const { return mySectorSize; }
    /// Unit vector of the centre direction.
    virtual AxVector64 const& centerVector() const;
    /// From 0 at the left edge to the sector's size at the right one; always in [0, 2 pi).
    virtual double bodyToSector(double angle) const;
    /// The inverse, in (-pi, pi].
    virtual double sectorToBody(double angle) const;
    virtual bool inSector(double angle) const;
    /// `direction` need not be a unit vector; the zero vector is inside.
    virtual bool inSector(AxVector64 const& direction) const;
    /// Positions in the world frame; `bodyRotation` turns that into the body frame.
    virtual bool inSector(AxVector64 const& ownPosition, AxVector64 const& otherPosition,
                          AxDcm const& bodyRotation) const;
    virtual AxSimSector* clone(AxReaderWriterRegistry* registry = nullptr) const;

private:
    struct Directions
    {
        double center;
        double size;
        AxVector64 centerVector;
        double cosHalfSize;
    };
    static Directions directionsOf(double center, double size);
    /// What follows from centre and size, whichever way these were changed.
    Directions const& directions() const;

    AxRwReal mySectorCenter{{"sector-center", "rad", "Centre direction, relative to the heading."}, registry()};
    AxRwReal mySectorSize{
        {"sector-size", "rad", "Full width.", {0.0, 6.283185307179586}}, 1.5707963267948966, registry()};
    mutable Directions myDirections{0.0, 1.5707963267948966, {1.0, 0.0, 0.0}, 0.7071067811865476};
};
