#pragma once

#include "AxDescriptorOf.h"
#include "AxScriptEnableControllerDescriptor.h"

/// A controller that builds engineering objects, such as obstacles, ditches and bridges; its scripts carry out the
/// work.
class ZEDOBJPARAM_API AxCreateEngineeringObjectControllerDescriptor
    : public AxDescriptorOf<AxCreateEngineeringObjectControllerDescriptor, AxScriptEnableControllerDescriptor,
                            "create-engineering-object-controller-descriptor">
{
public:
    AxCreateEngineeringObjectControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxCreateEngineeringObjectControllerDescriptor(AxCreateEngineeringObjectControllerDescriptor const& other,
                                                  AxReaderWriterRegistry* registry)
        : AxCreateEngineeringObjectControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxCreateEngineeringObjectControllerDescriptor() override;
};
