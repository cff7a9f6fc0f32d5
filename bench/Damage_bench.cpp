#include "Damage_bench.h"

#include "Allocations.h"
#include "AxDmgAngleOfIncidenceRangeCalcTable.h"
#include "AxDmgAngleOfIncidenceRangeLookupTable.h"
#include "AxDmgMunitionTable.h"
#include "AxRangeProbabilityTable.h"

#include <benchmark/benchmark.h>

#include <array>
#include <memory>
#include <random>
#include <string>
#include <vector>

namespace
{
constexpr int theNumMunitions = 24;
constexpr std::array theSurfaces{"front", "rear", "left-side", "right-side", "roof-and-engine-deck", "belly"};
constexpr std::array theOutcomes{"mobility", "firepower", "mobility-firepower", "catastrophic"};

AxObjectType typeOf(int munition)
{
    return {2, 2, 225, 2, munition, 1, 0, 1};
}

void addRows(AxDmgSurfaceEntry& surface, double angle)
{
    AxDmgAngleOfIncidenceRangeLookupTable table;
    table.setAngleOfIncidence(angle);
    for (int i = 1; i <= 5; ++i)
    {
        AxPrbRangeTableEntry row(2.0 * i);
        for (char const* outcome : theOutcomes)
        {
            row.addProbability(outcome, 1.0 / (1 + i));
        }
        table.addTableEntry(row);
    }
    surface.addAngleOfIncidenceTable(table);
}

void addLines(AxDmgSurfaceEntry& surface, double angle)
{
    AxDmgAngleOfIncidenceRangeCalcTable table;
    table.setAngleOfIncidence(angle);
    for (char const* outcome : {theOutcomes[0], theOutcomes[3]})
    {
        std::array const values{-0.1, 1.0};
        AxPrbProbabilityCoefficients line(outcome, nullptr);
        line.setCoefficients(2, values.data());
        table.addProbabilityCoefficients(line);
    }
    surface.addAngleOfIncidenceTable(table);
}

/// Munitions, each for its own type and for what is derived from it, and what is asked of them.
struct DamageSet
{
    struct Question
    {
        AxSimMunition const* munition;
        AxString surface;
        double angle;
        double range;
        bool direct;
    };

    DamageSet()
    {
        AxDmgSurfaceTable surfaces;
        for (char const* name : theSurfaces)
        {
            AxDmgSurfaceEntry surface(name, nullptr);
            for (double const angle : {15.0, 45.0, 75.0})
            {
                addRows(surface, angle);
            }
            addLines(surface, 90.0);
            surfaces.addSurfaceEntry(surface);
        }
        for (int i = 0; i < theNumMunitions; ++i)
        {
            AxObjectType pattern = typeOf(i);
            pattern.setSpecific(AxObjectType::theWildcard);
            AxDmgMunitionEntry* const entry = table.addMunitionEntry(i % 2 ? typeOf(i) : pattern);
            entry->directDamage() = surfaces;
            entry->collateralDamage() = surfaces;
            munitions.push_back(std::make_unique<AxSimMunition>());
            munitions.back()->setMunitionType(typeOf(i));
        }
        std::mt19937 source(17);
        for (int i = 0; i < 1024; ++i)
        {
            questions.push_back({munitions[source() % munitions.size()].get(),
                                 theSurfaces[source() % theSurfaces.size()], static_cast<double>(source() % 91),
                                 static_cast<double>(source() % 11), i % 2 == 0});
        }
    }

    bool ask(std::size_t number)
    {
        Question const& q = questions[number % questions.size()];
        return table.getProbabilities(*q.munition, q.surface, q.angle, q.range, &row, q.direct);
    }

    AxDmgMunitionTable table;
    std::vector<std::unique_ptr<AxSimMunition>> munitions;
    std::vector<Question> questions;
    AxPrbRangeTableEntry row;
};

/// A table of hits, or of detections, which has the same form: general patterns before what is derived from them.
struct HitSet
{
    struct Question
    {
        AxEntityType type;
        double range;
    };

    HitSet()
    {
        std::string text = "(hits (entity-range (entity-type 1 -1 -1 -1 -1 -1 -1) (range-determinant (coefficients "
                           "(hit -0.0002 1.0))))";
        for (int category = 0; category < theNumMunitions; ++category)
        {
            char const* const rest = category % 2 == 0 ? " -1 -1 -1)" : " 1 3 0)";
            text += "(entity-range (entity-type 1 1 225 " + std::to_string(category) + rest +
                    " (range-determinant (range-list";
            for (int number = 1; number <= 5; ++number)
            {
                text += " (range-entry " + std::to_string(500 * number) + ".0 (hit 0.5))";
            }
            text += ")))";
        }
        table.readText(text + ")", AxFilename("bench.hit"), AxReaderWriter::nullFilenames(),
                       AxReaderWriter::nullVariableReference());
        std::mt19937 source(19);
        for (int i = 0; i < 1024; ++i)
        {
            AxEntityType const type(1, 1, 225, static_cast<int>(source() % (theNumMunitions + 4)), 1, 3, 0);
            questions.push_back({type, static_cast<double>(source() % 3000)});
        }
    }

    bool ask(std::size_t number)
    {
        Question const& q = questions[number % questions.size()];
        return table.getProbabilities(q.type, q.range, &row);
    }

    AxRangeProbabilityTable table{"hits", nullptr};
    std::vector<Question> questions;
    AxPrbRangeTableEntry row;
};

template <class Set>
void query(benchmark::State& state)
{
    Set set;
    auto const askAll = [&]
    {
        bool all = true;
        for (std::size_t i = 0; i < set.questions.size(); ++i)
        {
            all = set.ask(i) && all;
        }
        return all;
    };
    bool const isAnswered = askAll();
    std::size_t const before = allocationCount();
    if (!isAnswered || !askAll() || allocationCount() != before)
    {
        state.SkipWithError("a query without an answer, or one that allocates");
        return;
    }
    std::size_t next = 0;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(set.ask(next++));
    }
}
} // namespace

void registerDamageQueries()
{
    benchmark::RegisterBenchmark("damage-query/ours", query<DamageSet>);
    benchmark::RegisterBenchmark("hit-query/ours", query<HitSet>);
}
