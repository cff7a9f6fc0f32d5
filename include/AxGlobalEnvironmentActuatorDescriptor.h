#pragma once

#include "AxActuatorComponentDescriptor.h"
#include "AxDescriptorOf.h"

/// Keeps time of day, weather and sea state of the whole simulated world on the object that stands for it.
class ZEDOBJPARAM_API AxGlobalEnvironmentActuatorDescriptor
    : public AxDescriptorOf<AxGlobalEnvironmentActuatorDescriptor, AxActuatorComponentDescriptor,
                            "global-environment-actuator-descriptor">
{
public:
    AxGlobalEnvironmentActuatorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxGlobalEnvironmentActuatorDescriptor(AxGlobalEnvironmentActuatorDescriptor const& other,
                                          AxReaderWriterRegistry* registry)
        : AxGlobalEnvironmentActuatorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxGlobalEnvironmentActuatorDescriptor() override;
};
