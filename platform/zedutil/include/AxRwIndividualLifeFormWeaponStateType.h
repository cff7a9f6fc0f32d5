#pragma once

#include "AxRwEnum.h"
#include "AxWeaponState.h"

/// How a life form carries its weapon, as a number.
using AxRwIndividualLifeFormWeaponStateType = AxRwEnum<AxWeaponState>;
