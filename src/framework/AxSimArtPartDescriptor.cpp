#include "AxSimArtPartDescriptor.h"

AxSimArtPartDescriptor::~AxSimArtPartDescriptor() = default;

int AxSimArtPartDescriptor::partType() const
{
    return myPartType;
}

void AxSimArtPartDescriptor::setPartType(int type)
{
    assignSpecified(myPartType, type);
}

AxString const& AxSimArtPartDescriptor::attachedTo() const
{
    return myAttachedTo.value();
}

void AxSimArtPartDescriptor::setAttachedTo(AxString const& part)
{
    assignSpecified(myAttachedTo, part);
}

AxVector64 const& AxSimArtPartDescriptor::offset() const
{
    return myOffset.value();
}

void AxSimArtPartDescriptor::setOffset(AxVector64 const& offset)
{
    assignSpecified(myOffset, offset);
}

double AxSimArtPartDescriptor::initialValue() const
{
    return myInitialValue;
}

void AxSimArtPartDescriptor::setInitialValue(double value)
{
    assignSpecified(myInitialValue, value);
}
