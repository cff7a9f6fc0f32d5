#pragma once

#include "AxDescriptorOf.h"
#include "AxSimArtPartDescriptorList.h"

/// An actuator: a component that moves articulated parts or the whole object. Base of the catalogue's actuators.
class ZEDOBJPARAM_API AxActuatorComponentDescriptor
    : public AxDescriptorOf<AxActuatorComponentDescriptor, AxComponentDescriptor, "actuator-component-descriptor">
{
public:
    using AxDescriptorOf::AxDescriptorOf;
    AxActuatorComponentDescriptor(AxActuatorComponentDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxActuatorComponentDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxActuatorComponentDescriptor() override;

    virtual AxSimArtPartDescriptorList& artPartDescriptorList();
    virtual AxSimArtPartDescriptorList const& artPartDescriptorList() const;
    virtual void setArtPartDescriptorList(AxSimArtPartDescriptorList const& list);

private:
    AxSimArtPartDescriptorList myArtPartList{{"art-part-list", "", "Articulated parts that the actuator moves."},
                                             registry()};
};
