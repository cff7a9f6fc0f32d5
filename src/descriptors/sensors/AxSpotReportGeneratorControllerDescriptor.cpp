#include "AxSpotReportGeneratorControllerDescriptor.h"

AxSpotReportGeneratorControllerDescriptor::AxSpotReportGeneratorControllerDescriptor(AxSymbolString name,
                                                                                     AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxSpotReportGeneratorControllerDescriptor::~AxSpotReportGeneratorControllerDescriptor() = default;
