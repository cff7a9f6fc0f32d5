#include "AxRwBoundingVolume.h"

AxRwBoundingVolume::AxRwBoundingVolume(AxRwBoundingVolume const& other, AxReaderWriterRegistry* registry)
    : AxRecordOf(other.AxReaderWriter::name(), registry)
{
    assign(other);
}

AxRwBoundingVolume::~AxRwBoundingVolume() = default;

AxRwBoundingVolume& AxRwBoundingVolume::operator=(AxRwBoundingVolume const& other)
{
    assign(other);
    return *this;
}

AxRwBoundingVolume& AxRwBoundingVolume::operator=(Ax3dBoundingVolume const& volume)
{
    myMin = volume.min();
    myMax = volume.max();
    valueAssigned();
    return *this;
}

Ax3dBoundingVolume const& AxRwBoundingVolume::volume() const
{
    myVolume = Ax3dBoundingVolume(myMin.value(), myMax.value());
    return myVolume;
}

void AxRwBoundingVolume::setVolume(Ax3dBoundingVolume const& volume)
{
    assignSpecified(*this, volume);
}

bool AxRwBoundingVolume::valueSpecified() const
{
    return myMin.valueSpecified() || myMax.valueSpecified();
}

void AxRwBoundingVolume::writeSelf(std::string& out, int indent, bool all, AxFilename const& file)
{
    if (valueSpecified() || isVariableReference() || flag(KeepsItems))
    {
        AxReaderWriter::writeSelf(out, indent, all, file);
    }
}
