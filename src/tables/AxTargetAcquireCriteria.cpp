#include "AxTargetAcquireCriteria.h"

AxTargetAcquireCriteria::AxTargetAcquireCriteria(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxRecordOf(name, registry)
{
    markDefaults();
}

AxTargetAcquireCriteria::AxTargetAcquireCriteria(AxString const& name, AxReaderWriterRegistry* registry)
    : AxTargetAcquireCriteria(AxSymbolString(name), registry)
{
}

AxTargetAcquireCriteria::AxTargetAcquireCriteria(char const* name, AxReaderWriterRegistry* registry)
    : AxTargetAcquireCriteria(AxSymbolString(name), registry)
{
}

AxTargetAcquireCriteria::AxTargetAcquireCriteria(AxKeyword const& keyword, AxReaderWriterRegistry* registry)
    : AxRecordOf(keyword, registry)
{
    markDefaults();
}

AxTargetAcquireCriteria::AxTargetAcquireCriteria(AxSymbolString name, AxTargetAcquireCriteria const& other,
                                                 AxReaderWriterRegistry* registry)
    : AxTargetAcquireCriteria(name, registry)
{
    assign(other);
}

AxTargetAcquireCriteria::AxTargetAcquireCriteria(AxTargetAcquireCriteria const& other, AxReaderWriterRegistry* registry)
    : AxTargetAcquireCriteria(other.AxReaderWriter::name(), other, registry)
{
}

AxTargetAcquireCriteria::~AxTargetAcquireCriteria() = default;

AxTargetAcquireCriteria& AxTargetAcquireCriteria::operator=(AxTargetAcquireCriteria const& other)
{
    assign(other);
    return *this;
}

void AxTargetAcquireCriteria::markDefaults()
{
    for (AxReaderWriter* member : std::initializer_list<AxReaderWriter*>{
             &myCheckSpeed, &myMaxTargetSpeed, &myCheckAngle, &myMaxElevationAngle, &myCheckElevation, &myMaxElevation})
    {
        member->setValueSpecified(true, false);
    }
}

void AxTargetAcquireCriteria::setEntityType(AxEntityType const& type)
{
    assignSpecified(myEntityType, type);
}

void AxTargetAcquireCriteria::setTimeToAcquire(double time)
{
    assignSpecified(myTimeToAcquire, time);
}

void AxTargetAcquireCriteria::setCheckSpeed(bool check)
{
    assignSpecified(myCheckSpeed, check);
}

void AxTargetAcquireCriteria::setMaxTargetSpeedToAcquire(double speed)
{
    assignSpecified(myMaxTargetSpeed, speed);
}

void AxTargetAcquireCriteria::setCheckAngleToTarget(bool check)
{
    assignSpecified(myCheckAngle, check);
}

void AxTargetAcquireCriteria::setMaxElevAngleToAcquire(double angle)
{
    assignSpecified(myMaxElevationAngle, angle);
}

void AxTargetAcquireCriteria::setCheckElevation(bool check)
{
    assignSpecified(myCheckElevation, check);
}

void AxTargetAcquireCriteria::setMaxElevToAcquire(double elevation)
{
    assignSpecified(myMaxElevation, elevation);
}
