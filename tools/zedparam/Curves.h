#pragma once

#include <string>
#include <vector>

class TableFile;

struct CurvePoint
{
    double range; ///< metres
    double probability;
};

/// The probability of one outcome by range.
struct Curve
{
    std::string outcome;
    std::string subject;            ///< an object type, or a munition, surface and angle
    bool isStep;                    ///< whether it is that of a step table
    std::vector<CurvePoint> points; ///< of ascending ranges, to be joined by lines; a step has two of one range
};

/// The curves of a hit, detection, damage or munition table, in its order, from 0 to `end` metres; none for any other.
std::vector<Curve> curvesOf(TableFile const& table, double end);

/// The range from which on nothing in the table changes, metres; 0.0 when it does not tell.
double reachOf(TableFile const& table);
