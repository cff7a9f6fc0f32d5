#include "AxSpotReportReceiverDescriptor.h"

AxSpotReportReceiverDescriptor::AxSpotReportReceiverDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxSpotReportReceiverDescriptor::~AxSpotReportReceiverDescriptor() = default;
