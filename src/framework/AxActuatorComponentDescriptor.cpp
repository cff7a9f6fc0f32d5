#include "AxActuatorComponentDescriptor.h"

AxActuatorComponentDescriptor::~AxActuatorComponentDescriptor() = default;

AxSimArtPartDescriptorList& AxActuatorComponentDescriptor::artPartDescriptorList()
{
    return myArtPartList;
}

AxSimArtPartDescriptorList const& AxActuatorComponentDescriptor::artPartDescriptorList() const
{
    return myArtPartList;
}

void AxActuatorComponentDescriptor::setArtPartDescriptorList(AxSimArtPartDescriptorList const& list)
{
    assignSpecified(myArtPartList, list);
}
