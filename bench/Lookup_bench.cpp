#include "Lookup_bench.h"

#include "AxZedParameterDb.h"
#include "AxZedParameterDbEntry.h"
#include "Types.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <memory>
#include <random>
#include <stdexcept>
#include <unordered_map>

namespace
{
/// A database of entries without records.
class EntryDb : public AxZedParameterDb
{
public:
    void enter(AxObjectType const& type)
    {
        auto* entry = new AxZedParameterDbEntry;
        entry->setObjectType(type);
        addParameterDbEntry(entry);
    }
};

/// What the look-up is by definition: the entries in ascending order, walked from the first.
AxObjectType const* walk(std::vector<AxObjectType> const& sorted, AxObjectType const& asked)
{
    AxObjectType const* best = nullptr;
    for (AxObjectType const& type : sorted)
    {
        if (type < asked)
        {
            best = asked.matchPattern(type) ? &type : best;
        }
        else
        {
            return type == asked || asked.matchPattern(type) ? &type : best;
        }
    }
    return best;
}

/// The types of one size, what is asked of them, and the peers that hold them.
struct LookupSet
{
    explicit LookupSet(Types const& types)
    {
        sorted = types.exact;
        sorted.insert(sorted.end(), types.patterns.begin(), types.patterns.end());
        for (AxObjectType const& type : sorted)
        {
            db.enter(type);
            map.emplace(type, &type);
        }
        std::sort(sorted.begin(), sorted.end());

        std::mt19937 source(11);
        auto const any = [&](std::vector<AxObjectType> const& from) { return from[source() % from.size()]; };
        auto const other = [&] { return static_cast<int>(1000 + source() % 1000); };
        for (std::size_t i = 0; i < 4096; ++i)
        {
            exact.push_back(any(types.exact));
            AxObjectType::Fields fields = any(types.patterns).fields();
            std::replace_if(
                fields.begin(), fields.end(), [](int field) { return field < 0; }, other());
            patterns.emplace_back(fields);
            AxObjectType miss = any(types.exact);
            miss.setKind(other());
            misses.push_back(miss);
        }
        require(exact);
        require(patterns);
        require(misses);
    }

    /// Index and walk must agree before their speed means anything.
    void require(std::vector<AxObjectType> const& asked)
    {
        for (std::size_t i = 0; i < asked.size(); i += 16)
        {
            AxZedParameterDbEntry const* found = db.lookupParameterDbEntry(asked[i], nullptr);
            AxObjectType const* expected = walk(sorted, asked[i]);
            if (!found != !expected || (found && found->objectType() != *expected))
            {
                throw std::runtime_error("look-up and walk disagree on " + asked[i].string().string());
            }
        }
    }

    EntryDb db;
    std::unordered_map<AxObjectType, AxObjectType const*> map;
    std::vector<AxObjectType> sorted;
    std::vector<AxObjectType> exact;
    std::vector<AxObjectType> patterns;
    std::vector<AxObjectType> misses;
};

using Asked = std::vector<AxObjectType> LookupSet::*;

/// One question an iteration, in an order that the branch predictor cannot learn.
template <class Ask>
void run(benchmark::State& state, std::vector<AxObjectType> const& asked, Ask const& ask)
{
    std::size_t next = 0;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(ask(asked[next]));
        next = (next + 1) % asked.size();
    }
}

void registerSet(std::shared_ptr<LookupSet> const& set, std::string const& size)
{
    auto const add = [&](char const* job, char const* who, Asked asked, auto ask)
    {
        std::string const name = std::string("lookup-") + job + "-" + size + "/" + who;
        benchmark::RegisterBenchmark(
            name.c_str(), [set, asked, ask](benchmark::State& state)
            { run(state, (*set).*asked, [&](AxObjectType const& type) { return ask(*set, type); }); });
    };
    auto const ours = [](LookupSet& all, AxObjectType const& type)
    { return all.db.lookupParameterDbEntry(type, nullptr); };
    auto const map = [](LookupSet& all, AxObjectType const& type)
    {
        auto const found = all.map.find(type);
        return found == all.map.end() ? nullptr : found->second;
    };
    auto const walked = [](LookupSet& all, AxObjectType const& type) { return walk(all.sorted, type); };
    add("exact", "ours", &LookupSet::exact, ours);
    add("exact", "map", &LookupSet::exact, map);
    add("exact", "walk", &LookupSet::exact, walked);
    add("pattern", "ours", &LookupSet::patterns, ours);
    add("pattern", "walk", &LookupSet::patterns, walked);
    add("miss", "ours", &LookupSet::misses, ours);
    add("miss", "map", &LookupSet::misses, map);
}

/// Adding every type one by one, and the first look-up, which builds what look-ups need.
void registerInsertion(std::shared_ptr<Types const> const& types, std::string const& size)
{
    benchmark::RegisterBenchmark(("insert-" + size + "/ours").c_str(),
                                 [types](benchmark::State& state)
                                 {
                                     for (auto _ : state)
                                     {
                                         EntryDb db;
                                         std::for_each(types->exact.begin(), types->exact.end(),
                                                       [&](AxObjectType const& type) { db.enter(type); });
                                         std::for_each(types->patterns.begin(), types->patterns.end(),
                                                       [&](AxObjectType const& type) { db.enter(type); });
                                         benchmark::DoNotOptimize(db.lookupParameterDbEntry(types->exact[0], nullptr));
                                     }
                                     state.counters["items"] = static_cast<double>(types->size());
                                 })
        ->Unit(benchmark::kMillisecond);
}
} // namespace

void registerLookups(std::string const& typesFile)
{
    std::vector<std::pair<std::string, Types>> sizes;
    if (typesFile.empty())
    {
        for (std::size_t const count : {1000U, 10000U, 100000U})
        {
            sizes.emplace_back(std::to_string(count), generateTypes(count));
        }
    }
    else
    {
        Types types = readTypes(typesFile);
        std::string const size = std::to_string(types.size());
        sizes.emplace_back(size, std::move(types));
    }
    for (auto& [size, types] : sizes)
    {
        if (types.exact.empty() || types.patterns.empty())
        {
            throw std::runtime_error("look-ups need exact types and patterns");
        }
        registerSet(std::make_shared<LookupSet>(types), size);
        registerInsertion(std::make_shared<Types const>(std::move(types)), size);
    }
}
