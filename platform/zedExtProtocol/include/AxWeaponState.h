#pragma once

/// How a life form carries a weapon (SISO-REF-010).
enum AxWeaponState : int
{
    AxWeaponNone = 0,
    AxWeaponStowed = 1,
    AxWeaponDeployed = 2,
    AxWeaponFiringPosition = 3
};
