#pragma once

#include "AxAggregateFormation.h"
#include "AxRwEnum.h"

/// The formation of an aggregate, as a number.
using AxRwFormationType = AxRwEnum<AxAggregateFormation>;
