#include "AxPrbRangeDeterminant.h"

AxPrbRangeDeterminant::~AxPrbRangeDeterminant() = default;

AxPrbRangeDeterminant& AxPrbRangeDeterminant::operator=(AxPrbRangeDeterminant const& other)
{
    assign(other);
    return *this;
}
