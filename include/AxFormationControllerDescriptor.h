#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"

/// Keeps the members of a unit at their places in its formation.
class ZEDOBJPARAM_API AxFormationControllerDescriptor
    : public AxDescriptorOf<AxFormationControllerDescriptor, AxComponentDescriptor, "formation-controller-descriptor">
{
public:
    AxFormationControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxFormationControllerDescriptor(AxFormationControllerDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxFormationControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxFormationControllerDescriptor() override;

    virtual bool autoPromoteInFormation() const { return myAutoPromoteInFormation; }
    virtual void setAutoPromoteInFormation(bool promote) { assignSpecified(myAutoPromoteInFormation, promote); }

private:
    AxRwBoolean myAutoPromoteInFormation{
        {"auto-promote-in-formation", "", "Whether the next in line takes over a lost leader's place."},
        true,
        registry()};
};
