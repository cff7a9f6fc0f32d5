#pragma once

#include "AxDamageAdjudicationComponentDescriptor.h"
#include "AxDescriptorOf.h"

/// Damage that adds up: hits that would each leave the object alone may together disable or destroy it.
class ZEDOBJPARAM_API AxMultipleHitDamageActuatorDescriptor
    : public AxDescriptorOf<AxMultipleHitDamageActuatorDescriptor, AxDamageAdjudicationComponentDescriptor,
                            "multiple-hit-damage-actuator-descriptor">
{
public:
    AxMultipleHitDamageActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxMultipleHitDamageActuatorDescriptor(AxMultipleHitDamageActuatorDescriptor const& other,
                                          AxReaderWriterRegistry* registry)
        : AxMultipleHitDamageActuatorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxMultipleHitDamageActuatorDescriptor() override;
};
