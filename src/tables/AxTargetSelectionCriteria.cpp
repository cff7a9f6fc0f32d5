#include "AxTargetSelectionCriteria.h"

AxTargetSelectionCriteria::AxTargetSelectionCriteria(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxRecordOf(name, registry)
{
    markDefaults();
}

AxTargetSelectionCriteria::AxTargetSelectionCriteria(AxString const& name, AxReaderWriterRegistry* registry)
    : AxTargetSelectionCriteria(AxSymbolString(name), registry)
{
}

AxTargetSelectionCriteria::AxTargetSelectionCriteria(char const* name, AxReaderWriterRegistry* registry)
    : AxTargetSelectionCriteria(AxSymbolString(name), registry)
{
}

AxTargetSelectionCriteria::AxTargetSelectionCriteria(AxKeyword const& keyword, AxReaderWriterRegistry* registry)
    : AxRecordOf(keyword, registry)
{
    markDefaults();
}

AxTargetSelectionCriteria::AxTargetSelectionCriteria(AxSymbolString name, AxTargetSelectionCriteria const& other,
                                                     AxReaderWriterRegistry* registry)
    : AxTargetSelectionCriteria(name, registry)
{
    assign(other);
}

AxTargetSelectionCriteria::AxTargetSelectionCriteria(AxTargetSelectionCriteria const& other,
                                                     AxReaderWriterRegistry* registry)
    : AxTargetSelectionCriteria(other.AxReaderWriter::name(), other, registry)
{
}

AxTargetSelectionCriteria::~AxTargetSelectionCriteria() = default;

AxTargetSelectionCriteria& AxTargetSelectionCriteria::operator=(AxTargetSelectionCriteria const& other)
{
    assign(other);
    return *this;
}

void AxTargetSelectionCriteria::markDefaults()
{
    myMaxTargets.setValueSpecified(true, false);
    myFireWithSpotReportOnly.setValueSpecified(true, false);
}

void AxTargetSelectionCriteria::setMaxTargets(int number)
{
    assignSpecified(myMaxTargets, number);
}

void AxTargetSelectionCriteria::setFireWithSpotReportOnly(bool only)
{
    assignSpecified(myFireWithSpotReportOnly, only);
}
