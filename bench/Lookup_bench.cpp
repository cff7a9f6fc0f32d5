#include "Lookup_bench.h"

#include "Allocations.h"
#include "AxZedParameterDb.h"
#include "AxZedParameterDbEntry.h"
#include "Types.h"

#include <absl/container/flat_hash_map.h>
#include <benchmark/benchmark.h>

#include <algorithm>
#include <functional>
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

/// By the fields, as they are.
struct FieldHash
{
    std::size_t operator()(AxObjectType const& type) const { return absl::HashOf(type.fields()); }
};
using Map = std::unordered_map<AxObjectType, AxObjectType const*>;
using FlatMap = absl::flat_hash_map<AxObjectType, AxObjectType const*, FieldHash>;

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
        }
        std::vector<AxObjectType> const entered = sorted;
        std::sort(sorted.begin(), sorted.end());
        for (AxObjectType const& type : entered) // as the database was, so that no order favours either
        {
            AxObjectType const* const place = &*std::lower_bound(sorted.begin(), sorted.end(), type);
            map.emplace(type, place);
            flat.emplace(type, place);
        }

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
    Map map;
    FlatMap flat;
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

/// Made when it is first asked for: a run that filters pays for what it measures only.
template <class Made>
class Lazy
{
public:
    explicit Lazy(std::function<std::unique_ptr<Made>()> make) : myMake(std::move(make)) {}
    Made& get()
    {
        if (!myMade)
        {
            myMade = myMake();
        }
        return *myMade;
    }

private:
    std::function<std::unique_ptr<Made>()> myMake;
    std::unique_ptr<Made> myMade;
};
using LazyTypes = std::shared_ptr<Lazy<Types>>;
using LazySet = std::shared_ptr<Lazy<LookupSet>>;

LazyTypes later(std::function<Types()> make)
{
    return std::make_shared<Lazy<Types>>([make = std::move(make)] { return std::make_unique<Types>(make()); });
}

LazySet setOf(LazyTypes const& types)
{
    return std::make_shared<Lazy<LookupSet>>([types] { return std::make_unique<LookupSet>(types->get()); });
}

void registerSet(LazySet const& set, std::string const& size)
{
    auto const add = [&](char const* job, char const* who, Asked asked, auto ask)
    {
        std::string const name = std::string("lookup-") + job + "-" + size + "/" + who;
        benchmark::RegisterBenchmark(name.c_str(),
                                     [set, asked, ask](benchmark::State& state)
                                     {
                                         LookupSet& all = set->get();
                                         run(state, all.*asked,
                                             [&](AxObjectType const& type) { return ask(all, type); });
                                     });
    };
    auto const ours = [](LookupSet& all, AxObjectType const& type)
    { return all.db.lookupParameterDbEntry(type, nullptr); };
    auto const found = [](auto const& map, AxObjectType const& type)
    {
        auto const place = map.find(type);
        return place == map.end() ? nullptr : place->second;
    };
    auto const map = [found](LookupSet& all, AxObjectType const& type) { return found(all.map, type); };
    auto const flat = [found](LookupSet& all, AxObjectType const& type) { return found(all.flat, type); };
    auto const walked = [](LookupSet& all, AxObjectType const& type) { return walk(all.sorted, type); };
    add("exact", "ours", &LookupSet::exact, ours);
    add("exact", "map", &LookupSet::exact, map);
    add("exact", "absl", &LookupSet::exact, flat);
    add("exact", "walk", &LookupSet::exact, walked);
    add("pattern", "ours", &LookupSet::patterns, ours);
    add("pattern", "walk", &LookupSet::patterns, walked);
    add("miss", "ours", &LookupSet::misses, ours);
    add("miss", "map", &LookupSet::misses, map);
}

/// Adding every type one by one, and the first look-up, which builds what look-ups need.
void registerInsertion(LazyTypes const& types, std::string const& size)
{
    auto const add = [&](char const* who, auto fill)
    {
        benchmark::RegisterBenchmark(("insert-" + size + "/" + who).c_str(),
                                     [types, fill](benchmark::State& state)
                                     {
                                         for (auto _ : state)
                                         {
                                             fill(types->get());
                                         }
                                         state.counters["items"] = static_cast<double>(types->get().size());
                                     })
            ->Unit(benchmark::kMillisecond);
    };
    add("ours",
        [](Types const& all)
        {
            EntryDb db;
            all.forEach([&](AxObjectType const& type) { db.enter(type); });
            benchmark::DoNotOptimize(db.lookupParameterDbEntry(all.exact[0], nullptr));
        });
    add("absl",
        [](Types const& all)
        {
            FlatMap map;
            all.forEach([&](AxObjectType const& type) { map.emplace(type, &type); });
            benchmark::DoNotOptimize(map.find(all.exact[0]));
        });
}

/// An entry comes, is looked up and goes, again and again, while all others are there.
void registerSingle(LazySet const& lazy, std::string const& size)
{
    benchmark::RegisterBenchmark(("add-one-" + size + "/ours").c_str(),
                                 [lazy](benchmark::State& state)
                                 {
                                     LookupSet* const set = &lazy->get();
                                     std::size_t next = 0;
                                     for (auto _ : state)
                                     {
                                         AxObjectType const& type = set->misses[next];
                                         next = (next + 1) % set->misses.size();
                                         set->db.enter(type);
                                         benchmark::DoNotOptimize(set->db.lookupParameterDbEntry(type, nullptr));
                                         set->db.removeParameters(type);
                                     }
                                 });
}

/// What the heap holds for one entry, its record aside.
void registerMemory(LazyTypes const& lazy, std::string const& size)
{
    benchmark::RegisterBenchmark(("memory-entry-" + size + "/ours").c_str(),
                                 [lazy](benchmark::State& state)
                                 {
                                     Types const* const types = &lazy->get();
                                     for (auto _ : state)
                                     {
                                         std::size_t const before = heapUse();
                                         EntryDb db;
                                         types->forEach([&](AxObjectType const& type) { db.enter(type); });
                                         db.lookupParameterDbEntry(types->exact[0], nullptr);
                                         state.counters["bytes"] = static_cast<double>(heapUse() - before) /
                                                                   static_cast<double>(types->size());
                                     }
                                 })
        ->Iterations(1);
}
} // namespace

void registerLookups(std::string const& typesFile)
{
    auto const registerAll = [](std::string const& size, LazyTypes const& types)
    {
        LazySet const set = setOf(types);
        registerSet(set, size);
        registerSingle(set, size);
        registerInsertion(types, size);
        registerMemory(types, size);
    };
    if (!typesFile.empty())
    {
        Types types = readTypes(typesFile);
        if (types.exact.empty() || types.patterns.empty())
        {
            throw std::runtime_error("look-ups need exact types and patterns");
        }
        std::string const size = std::to_string(types.size());
        registerAll(size, later([types = std::move(types)] { return types; }));
        return;
    }
    for (std::size_t const count : {1000U, 10000U, 100000U, 1000000U})
    {
        registerAll(std::to_string(count), later([count] { return generateTypes(count); }));
    }
    registerSet(setOf(later([] { return generateTypes(100000, 41); })), "41-shapes");
}
