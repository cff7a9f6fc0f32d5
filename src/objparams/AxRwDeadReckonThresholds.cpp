#include "AxRwDeadReckonThresholds.h"

AxRwDeadReckonThresholds::AxRwDeadReckonThresholds(AxString const& name, AxRwDeadReckonThresholds const& other,
                                                   AxReaderWriterRegistry* registry)
    : AxRecordOf(name, registry)
{
    assign(other);
}

AxRwDeadReckonThresholds::AxRwDeadReckonThresholds(AxRwDeadReckonThresholds const& other)
    : AxRwDeadReckonThresholds(other.AxReaderWriter::name().string(), other, nullptr)
{
}

AxRwDeadReckonThresholds::~AxRwDeadReckonThresholds() = default;

AxRwDeadReckonThresholds& AxRwDeadReckonThresholds::operator=(AxRwDeadReckonThresholds const& other)
{
    assign(other);
    return *this;
}
