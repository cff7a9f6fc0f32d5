#include "AxFormation.h"

AxFormation::AxFormation(AxFormation const& other, AxReaderWriterRegistry* registry)
    : AxRecordOf(other.AxReaderWriter::name(), registry)
{
    *this = other;
}

AxFormation::~AxFormation() = default;

AxFormation& AxFormation::operator=(AxFormation const& other)
{
    assign(other);
    myFormationType = other.myFormationType;
    return *this;
}

AxVector64 AxFormation::offset(int index) const
{
    if (index < 0)
    {
        return {};
    }
    AxVector64 last;
    int next = 0;
    for (AxFormationPosition const* position : myPositions)
    {
        last = position->offset();
        if (next++ == index)
        {
            return last;
        }
    }
    return last + myExtraSpacing.value() * (static_cast<double>(index) - next + 1.0);
}
