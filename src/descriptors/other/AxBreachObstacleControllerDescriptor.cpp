#include "AxBreachObstacleControllerDescriptor.h"

AxBreachObstacleControllerDescriptor::AxBreachObstacleControllerDescriptor(AxSymbolString name,
                                                                           AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxBreachObstacleControllerDescriptor::~AxBreachObstacleControllerDescriptor() = default;
