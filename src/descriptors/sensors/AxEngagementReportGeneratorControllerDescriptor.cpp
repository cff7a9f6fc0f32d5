#include "AxEngagementReportGeneratorControllerDescriptor.h"

AxEngagementReportGeneratorControllerDescriptor::AxEngagementReportGeneratorControllerDescriptor(
    AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxDescriptorOf(name, registry)
{
}

AxEngagementReportGeneratorControllerDescriptor::~AxEngagementReportGeneratorControllerDescriptor() = default;
