#include "AxHumanJoystickMovementControllerDescriptor.h"

AxHumanJoystickMovementControllerDescriptor::AxHumanJoystickMovementControllerDescriptor(
    AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxHumanJoystickMovementControllerDescriptor::~AxHumanJoystickMovementControllerDescriptor() = default;
