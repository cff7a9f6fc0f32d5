#pragma once

#include "AxCreateEngineeringObjectControllerDescriptor.h"
#include "AxDescriptorOf.h"

/// A controller that opens lanes through obstacles and minefields; its scripts carry out the work.
class ZEDOBJPARAM_API AxBreachObstacleControllerDescriptor
    : public AxDescriptorOf<AxBreachObstacleControllerDescriptor, AxCreateEngineeringObjectControllerDescriptor,
                            "breach-obstacle-controller-descriptor">
{
public:
    AxBreachObstacleControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxBreachObstacleControllerDescriptor(AxBreachObstacleControllerDescriptor const& other,
                                         AxReaderWriterRegistry* registry)
        : AxBreachObstacleControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxBreachObstacleControllerDescriptor() override;
};
