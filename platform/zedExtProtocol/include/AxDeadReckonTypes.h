#pragma once

/// Dead-reckoning algorithm (SISO-REF-010). In the names: F fixed or R rotating; P rate of position or V rate of
/// velocity; W world or B body axes.
enum AxDeadReckonTypes : int
{
    AxDeadReckonOther = 0,
    AxDeadReckonStatic = 1,
    AxDeadReckonDrmFPW = 2,
    AxDeadReckonDrmRPW = 3,
    AxDeadReckonDrmRVW = 4,
    AxDeadReckonDrmFVW = 5,
    AxDeadReckonDrmFPB = 6,
    AxDeadReckonDrmRPB = 7,
    AxDeadReckonDrmRVB = 8,
    AxDeadReckonDrmFVB = 9
};
