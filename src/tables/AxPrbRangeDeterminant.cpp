#include "AxPrbRangeDeterminant.h"

AxPrbRangeDeterminant::~AxPrbRangeDeterminant() = default;

AxPrbRangeDeterminant& AxPrbRangeDeterminant::operator=(AxPrbRangeDeterminant const& other)
{
    assign(other);
    return *this;
}

void AxPrbRangeDeterminant::postGetSelf()
{
    keepBehind(registry()->entry(0).keyword); // what stands first tells the kind
}
