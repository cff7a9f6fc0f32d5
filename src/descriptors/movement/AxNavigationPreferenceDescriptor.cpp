#include "AxNavigationPreferenceDescriptor.h"

AxNavigationPreferenceDescriptor::AxNavigationPreferenceDescriptor(AxSymbolString name,
                                                                   AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxNavigationPreferenceDescriptor::~AxNavigationPreferenceDescriptor() = default;
