#pragma once

/// Formation of an aggregate (SISO-REF-010).
enum AxAggregateFormation : int
{
    AxFormationOther = 0,
    AxFormationAssembly = 1,
    AxFormationVee = 2,
    AxFormationWedge = 3,
    AxFormationLine = 4,
    AxFormationColumn = 5
};
