#pragma once

#include "AxLifeformState.h"
#include "AxRwEnum.h"

/// The posture of a life form, as a number.
using AxRwIndividualLifeFormStateType = AxRwEnum<AxLifeformState>;
