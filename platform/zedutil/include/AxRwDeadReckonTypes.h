#pragma once

#include "AxDeadReckonTypes.h"
#include "AxRwEnum.h"

/// A dead-reckoning algorithm, as a number.
using AxRwDeadReckonTypes = AxRwEnum<AxDeadReckonTypes>;
