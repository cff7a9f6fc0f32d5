#include "AxCombatRangeControllerDescriptor.h"

AxCombatRangeControllerDescriptor::AxCombatRangeControllerDescriptor(AxSymbolString name,
                                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxCombatRangeControllerDescriptor::~AxCombatRangeControllerDescriptor() = default;
