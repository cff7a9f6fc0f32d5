#include "AxIndividualLifeformAcquireDescriptor.h"

AxIndividualLifeformAcquireDescriptor::AxIndividualLifeformAcquireDescriptor(AxSymbolString name,
                                                                             AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxIndividualLifeformAcquireDescriptor::~AxIndividualLifeformAcquireDescriptor() = default;
