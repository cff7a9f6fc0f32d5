#include "AxSimSector.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace
{
constexpr double theFullCircle = 2.0 * std::numbers::pi;
constexpr double theTolerance = 1e-12;

/// In [0, 2 pi).
double normalised(double angle)
{
    double result = std::fmod(angle, theFullCircle);
    if (result < 0.0)
    {
        result += theFullCircle;
    }
    return result >= theFullCircle - theTolerance ? 0.0 : result;
}
} // namespace

AxSimSector::AxSimSector(AxSymbolString name, AxSimSector const& other, AxReaderWriterRegistry* registry)
    : AxSimSector(name, registry)
{
    assign(other);
}

AxSimSector::AxSimSector(AxSimSector const& other, AxReaderWriterRegistry* registry)
    : AxSimSector(other.AxReaderWriter::name(), other, registry)
{
}

AxSimSector::~AxSimSector() = default;

AxSimSector& AxSimSector::operator=(AxSimSector const& other)
{
    assign(other);
    return *this;
}

void AxSimSector::setSector(double center, double size)
{
    mySectorCenter = center;
    mySectorSize = size;
    setValueSpecified(true, false);
}

AxSimSector::Directions AxSimSector::directionsOf(double center, double size)
{
    double const width = std::clamp(size, 0.0, theFullCircle);
    return {center, size, {std::cos(center), std::sin(center), 0.0}, std::cos(width / 2.0)};
}

AxSimSector::Directions const& AxSimSector::directions() const
{
    if (myDirections.center != mySectorCenter.value() || myDirections.size != mySectorSize.value())
    {
        myDirections = directionsOf(mySectorCenter, mySectorSize);
    }
    return myDirections;
}

AxVector64 const& AxSimSector::centerVector() const
{
    return directions().centerVector;
}

double AxSimSector::bodyToSector(double angle) const
{
    return normalised(angle - (mySectorCenter - mySectorSize / 2.0));
}

double AxSimSector::sectorToBody(double angle) const
{
    double const result = normalised(angle + mySectorCenter - mySectorSize / 2.0);
    return result > std::numbers::pi ? result - theFullCircle : result;
}

bool AxSimSector::inSector(double angle) const
{
    return mySectorSize >= theFullCircle || bodyToSector(angle) <= mySectorSize + theTolerance;
}

bool AxSimSector::inSector(AxVector64 const& direction) const
{
    // The tolerance keeps the edge inside, which exact arithmetic would put out.
    Directions const& mine = directions();
    double const length = direction.length();
    return mine.centerVector.dot(direction) >= length * mine.cosHalfSize - theTolerance * length;
}

bool AxSimSector::inSector(AxVector64 const& ownPosition, AxVector64 const& otherPosition,
                           AxDcm const& bodyRotation) const
{
    return inSector(bodyRotation * (otherPosition - ownPosition));
}

AxSimSector* AxSimSector::clone(AxReaderWriterRegistry* registry) const
{
    return new AxSimSector(*this, registry);
}
