#include "Curves.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "AxDmgMunitionTable.h"
#include "AxNumberText.h"
#include "AxPrbCoefficientsRangeDeterminant.h"
#include "AxPrbTableRangeDeterminant.h"
#include "AxRangeProbabilityTable.h"
#include "MunitionText.h"
#include "TableFile.h"

namespace
{
using Visit = std::function<void(std::string const& subject, AxPrbRangeDeterminant const& determinant)>;

void visitSurfaces(AxDmgSurfaceTable const& table, std::string const& prefix, Visit const& visit)
{
    for (AxDmgSurfaceEntry const* surface : table)
    {
        if (table.lookupSurfaceEntry(surface->AxReaderWriter::name().string()) != surface)
        {
            continue; // a later one answers
        }
        for (AxDmgAngleOfIncidenceTable const* angle : *surface)
        {
            std::string subject = prefix + surface->AxReaderWriter::name().string().string() + ", up to ";
            axAppendReal(subject, angle->angleOfIncidence());
            visit(subject + " deg", angle->determinant());
        }
    }
}

void visitDeterminants(TableFile const& file, Visit const& visit)
{
    if (file.kind() == TableKind::Probabilities)
    {
        auto const& table = file.as<AxRangeProbabilityTable>();
        for (AxListItem const* item = table.first(); item != nullptr; item = item->next())
        {
            auto const* const entry = static_cast<AxRangeProbEntry const*>(AxRwList::element(item));
            visit(entry->entityType().string().string(), entry->determinant());
        }
    }
    else if (file.kind() == TableKind::Damage)
    {
        visitSurfaces(file.as<AxDmgSurfaceTable>(), "", visit);
    }
    else if (file.kind() == TableKind::Munitions)
    {
        for (AxDmgMunitionEntry const* entry : file.as<AxDmgMunitionTable>())
        {
            std::string const munition = munitionText(entry->munition());
            visitSurfaces(entry->directDamage(), munition + " hits ", visit);
            visitSurfaces(entry->collateralDamage(), munition + " goes off near ", visit);
        }
    }
}

/// Where the polynomial becomes 0 or 1 for good, as far as it tells.
double reachOf(AxPrbProbabilityCoefficients const& polynomial)
{
    int const number = polynomial.numCoefficients();
    double const reach = number == 2 || number == 3 ? polynomial.solveForMaximum() : 0.0;
    return std::isfinite(reach) ? reach : 0.0;
}

void addSteps(AxPrbRangeList const& rows, std::string const& subject, double end, std::vector<Curve>& out)
{
    std::vector<AxString> outcomes;
    for (AxListItem const* item = rows.first(); item != nullptr; item = item->next())
    {
        for (AxRwReal const* outcome : *AxPrbRangeList::row(item))
        {
            AxString const& name = outcome->AxReaderWriter::name().string();
            if (std::ranges::find(outcomes, name) == outcomes.end())
            {
                outcomes.push_back(name);
            }
        }
    }
    for (AxString const& outcome : outcomes)
    {
        Curve curve{outcome.string(), subject, true, {}};
        double from = 0.0;
        for (AxListItem const* item = rows.first(); item != nullptr; item = item->next())
        {
            AxPrbRangeTableEntry const& row = *AxPrbRangeList::row(item);
            curve.points.push_back({from, row.probability(outcome)});
            curve.points.push_back({row.range(), row.probability(outcome)});
            from = row.range();
        }
        curve.points.push_back({from, 0.0});
        curve.points.push_back({std::max(from, end), 0.0});
        out.push_back(std::move(curve));
    }
}

void addPolynomials(AxPrbCoefficientList const& polynomials, std::string const& subject, double end,
                    std::vector<Curve>& out)
{
    constexpr int theSamples = 200;
    for (AxPrbProbabilityCoefficients const* polynomial : polynomials)
    {
        Curve curve{polynomial->AxReaderWriter::name().string().string(), subject, false, {}};
        for (int i = 0; i <= theSamples; ++i)
        {
            double const range = end * i / theSamples;
            curve.points.push_back({range, polynomial->probability(range)});
        }
        out.push_back(std::move(curve));
    }
}
} // namespace

std::vector<Curve> curvesOf(TableFile const& table, double end)
{
    std::vector<Curve> curves;
    visitDeterminants(table,
                      [&](std::string const& subject, AxPrbRangeDeterminant const& determinant)
                      {
                          if (auto const* steps = dynamic_cast<AxPrbTableRangeDeterminant const*>(&determinant))
                          {
                              addSteps(steps->rangeList(), subject, end, curves);
                          }
                          else if (auto const* sums =
                                       dynamic_cast<AxPrbCoefficientsRangeDeterminant const*>(&determinant))
                          {
                              addPolynomials(sums->coefficientList(), subject, end, curves);
                          }
                      });
    return curves;
}

double reachOf(TableFile const& table)
{
    double reach = 0.0;
    visitDeterminants(table,
                      [&](std::string const&, AxPrbRangeDeterminant const& determinant)
                      {
                          if (auto const* steps = dynamic_cast<AxPrbTableRangeDeterminant const*>(&determinant))
                          {
                              reach = std::max(reach, steps->getMaximumDamageRadius());
                          }
                          else if (auto const* sums =
                                       dynamic_cast<AxPrbCoefficientsRangeDeterminant const*>(&determinant))
                          {
                              for (AxPrbProbabilityCoefficients const* polynomial : sums->coefficientList())
                              {
                                  reach = std::max(reach, reachOf(*polynomial));
                              }
                          }
                      });
    return reach;
}
