#include "AxBallisticGunDescriptor.h"

AxBallisticGunDescriptor::AxBallisticGunDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
    myHitProbabilityFile.setContent(&myHitProbabilityTable);
}

AxBallisticGunDescriptor::~AxBallisticGunDescriptor() = default;
