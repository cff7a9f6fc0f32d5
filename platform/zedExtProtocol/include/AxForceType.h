#pragma once

/// Side in a conflict (SISO-REF-010). The further numbered forces, 4 to 30, have no names.
enum AxForceType : int
{
    AxForceOther = 0,
    AxForceFriendly = 1,
    AxForceOpposing = 2,
    AxForceNeutral = 3
};
