#include "AxSurfaceEntityPilotControllerDescriptor.h"

AxSurfaceEntityPilotControllerDescriptor::~AxSurfaceEntityPilotControllerDescriptor() = default;
