#include <algorithm>
#include <cmath>
#include <vector>

#include "AxNumberText.h"
#include "AxPrbProbabilityCoefficients.h"
#include "AxlObj.h"
#include "RowCheck.h"

namespace
{
/// What rounding in the text may add.
constexpr double theLargestSum = 1.0 + 1e-6;
/// Degrees between the shot and what stands upright on the surface.
constexpr double theGrazingAngle = 90.0;

/// Without the traces of binary fractions.
std::string shownSum(double sum)
{
    constexpr double places = 1e6;
    return spelled(std::round(sum * places) / places);
}

/// Adds up the outcomes of each row.
void checkSumsOfRows(AxlObj const& rangeList, CellReport const& report)
{
    for (AxlObj const* rest = rangeList.cdr(); rest->isPair(); rest = rest->cdr())
    {
        AxlObj const& range = *rest->car()->cdr()->car();
        double sum = 0.0;
        for (AxlObj const* outcome = rest->car()->cdr()->cdr(); outcome->isPair(); outcome = outcome->cdr())
        {
            sum += std::clamp(outcome->car()->cdr()->car()->flonum(), 0.0, 1.0);
        }
        if (sum > theLargestSum)
        {
            report("sum-above-one", range,
                   "the outcomes at " + spelled(range.flonum()) + " m add up to " + shownSum(sum));
        }
    }
}

/// Adds the polynomials up at the target and, in steps that grow with the range, around it; tells the first too great.
void checkSumOfPolynomials(AxlObj const& coefficients, CellReport const& report)
{
    std::vector<AxPrbProbabilityCoefficients> polynomials;
    for (AxlObj const* rest = coefficients.cdr(); rest->isPair(); rest = rest->cdr())
    {
        std::vector<double> numbers;
        for (AxlObj const* number = rest->car()->cdr(); number->isPair(); number = number->cdr())
        {
            numbers.push_back(number->car()->flonum());
        }
        polynomials.emplace_back("outcome", nullptr);
        polynomials.back().setCoefficients(static_cast<int>(numbers.size()), numbers.data());
    }
    forEachRange(
        [&](double range)
        {
            double sum = 0.0;
            for (AxPrbProbabilityCoefficients const& polynomial : polynomials)
            {
                sum += polynomial.probability(range);
            }
            if (sum > theLargestSum)
            {
                report("sum-above-one", coefficients,
                       "the outcomes at " + spelled(range) + " m add up to " + shownSum(sum));
            }
            return sum <= theLargestSum;
        });
}

void checkSums(AxlObj const& angle, CellReport const& report)
{
    AxlObj const* const determinant = itemOf(angle, "range-determinant");
    AxlObj const* const source = determinant != nullptr ? determinant->cdr()->car() : &angle;
    if (source->car()->text() == "range-list")
    {
        checkSumsOfRows(*source, report);
    }
    else if (source->car()->text() == "coefficients")
    {
        checkSumOfPolynomials(*source, report);
    }
}
} // namespace

void checkSurface(AxlObj const& list, CellReport const& report)
{
    AxlObj const* last = nullptr;
    double largest = 0.0;
    for (AxlObj const* rest = list.cdr(); rest->isPair(); rest = rest->cdr())
    {
        AxlObj const& item = *rest->car();
        if (item.car()->text() != "angle-of-incidence")
        {
            continue;
        }
        AxlObj const* const given = itemOf(item, "angle");
        AxlObj const& place = given != nullptr ? *given->cdr()->car() : item;
        if (given != nullptr && !place.isNumber())
        {
            continue;
        }
        double const angle = given != nullptr ? place.flonum() : 0.0;
        checkSums(item, report);
        if (last != nullptr && angle <= largest)
        {
            report("out-of-order", place,
                   "the angle " + spelled(angle) + " stands behind " + spelled(largest) + " and is never reached");
            continue;
        }
        largest = angle;
        last = &place;
    }
    if (last != nullptr && largest < theGrazingAngle)
    {
        report("uncovered-angle", *last,
               '"' + std::string(list.car()->text()) + "\" has no answer for angles above " + spelled(largest) +
                   ", expected up to " + spelled(theGrazingAngle));
    }
}

void checkSurfaces(AxlObj const& list, bool isTable, CellReport const& report)
{
    std::vector<AxlObj const*> empty;
    for (AxlObj const* rest = list.cdr(); rest->isPair(); rest = rest->cdr())
    {
        AxlObj const& surface = *rest->car();
        isTable = isTable || itemOf(surface, "angle-of-incidence") != nullptr;
        if (surface.isPair() && surface.cdr()->nil())
        {
            empty.push_back(&surface);
        }
    }
    for (AxlObj const* const surface : isTable ? empty : std::vector<AxlObj const*>())
    {
        report("empty-table", *surface,
               "the surface \"" + std::string(surface->car()->text()) + "\" is empty and never answers");
    }
}
