#pragma once

#include "AxDescriptorOf.h"
#include "AxScriptEnableControllerDescriptor.h"

/// A controller that removes engineering objects; its scripts carry out the work.
class ZEDOBJPARAM_API AxDestroyEngineeringObjectControllerDescriptor
    : public AxDescriptorOf<AxDestroyEngineeringObjectControllerDescriptor, AxScriptEnableControllerDescriptor,
                            "destroy-engineering-object-controller-descriptor">
{
public:
    AxDestroyEngineeringObjectControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxDestroyEngineeringObjectControllerDescriptor(AxDestroyEngineeringObjectControllerDescriptor const& other,
                                                   AxReaderWriterRegistry* registry)
        : AxDestroyEngineeringObjectControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxDestroyEngineeringObjectControllerDescriptor() override;
};
