#include "AxRotaryWingLandingGearDescriptor.h"

AxRotaryWingLandingGearDescriptor::AxRotaryWingLandingGearDescriptor(AxSymbolString name,
                                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxRotaryWingLandingGearDescriptor::~AxRotaryWingLandingGearDescriptor() = default;
