#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxDescriptorOf.h"

/// Tracks how far incoming fire suppresses the object and lets the suppression wear off.
class ZEDOBJPARAM_API AxSuppressionActuatorDescriptor
    : public AxDescriptorOf<AxSuppressionActuatorDescriptor, AxActuatorComponentDescriptor,
                            "suppression-actuator-descriptor">
{
public:
    AxSuppressionActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxSuppressionActuatorDescriptor(AxSuppressionActuatorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxSuppressionActuatorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxSuppressionActuatorDescriptor() override;
};
