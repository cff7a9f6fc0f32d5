#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxDescriptorOf.h"

/// Judges what a detonation or collision does to the object, by its damage tables, and sets the damage. Base of the
/// actuator that adds up hits.
class ZEDOBJPARAM_API AxDamageAdjudicationComponentDescriptor
    : public AxDescriptorOf<AxDamageAdjudicationComponentDescriptor, AxActuatorComponentDescriptor,
                            "damage-adjudication-actuator-descriptor">
{
public:
    AxDamageAdjudicationComponentDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxDamageAdjudicationComponentDescriptor(AxDamageAdjudicationComponentDescriptor const& other,
                                            AxReaderWriterRegistry* registry)
        : AxDamageAdjudicationComponentDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxDamageAdjudicationComponentDescriptor() override;
};
