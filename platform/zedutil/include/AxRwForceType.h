#pragma once

#include "AxForceType.h"
#include "AxRwEnum.h"

/// A side in a conflict, as a number.
using AxRwForceType = AxRwEnum<AxForceType>;
