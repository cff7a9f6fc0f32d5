#include "Growth_bench.h"

#include "AxSxpParameterDb.h"
#include "AxZedParameterDbEntry.h"
#include "AxlFileInputStream.h"
#include "AxlFunctions.h"
#include "BenchRecord.h"
#include "Files.h"
#include "RecordTexts.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <memory>
#include <stdexcept>
#include <string>
#include <vector>

/// How the cost of opening, loading and saving a database follows the number of its records.
namespace
{
namespace fs = std::filesystem;

constexpr int theMostRecords = 100000;
constexpr int theMostEntries = 1000000;
/// So many files, each of which has the names of many records: what is measured is their reading, not the disk.
constexpr int theNumFiles = 1000;

std::string entry(int number)
{
    return "    (parameter-entry\n      (object-type 1 " + std::to_string(1 + number % 5) + " 225 " +
           std::to_string(1 + number / 10000) + ' ' + std::to_string(number / 1000 % 10) + ' ' +
           std::to_string(number / 10 % 100) + ' ' + std::to_string(number % 10) +
           " 1)\n      (filename \"records/record_" + std::to_string(number) + ".ope\"))\n";
}

/// Databases of many sizes on the same records: the members of the other jobs' record without its components.
class Growing
{
public:
    Growing()
    {
        fs::create_directory(myFolder.path() / "records");
        BenchRecord record(AxSymbolString("record"), nullptr);
        record.readText(ourSource, AxFilename("record"), AxReaderWriter::nullFilenames(),
                        AxReaderWriter::nullVariableReference());
        record.myComponents.removeAndDeleteAll();
        std::string text = record.writtenText();
        text.insert(std::string("(record").size(), "\n  (parameter-type \"bench-parameters\")");
        for (int number = 0; number < theMostRecords; ++number)
        {
            if (number < theNumFiles)
            {
                writeFile(recordFile(number), text);
            }
            else
            {
                fs::create_hard_link(recordFile(number % theNumFiles), recordFile(number));
            }
        }
        for (int count = 100; count <= theMostEntries; count *= 10)
        {
            std::string all = "(parameter-database\n  (version 101)\n  (parameter-files\n";
            for (int number = 0; number < count; ++number)
            {
                all += entry(number);
            }
            writeFile(file(count), all + "  )\n)\n");
        }
        settleFiles();
    }

    static Growing& get()
    {
        static Growing all;
        return all;
    }

    fs::path file(int count) const { return myFolder.path() / (std::to_string(count) + ".opd"); }
    fs::path folder() const { return myFolder.path(); }

private:
    fs::path recordFile(int number) const
    {
        return myFolder.path() / "records" / ("record_" + std::to_string(number) + ".ope");
    }

    TemporaryFolder myFolder;
};

std::unique_ptr<AxSxpParameterDb> opened(int count, bool whole)
{
    std::unique_ptr<AxSxpParameterDb> db(AxSxpParameterDb::create());
    db->init();
    AxFilename const file(Growing::get().file(count).string());
    bool const isLoaded = whole ? db->loadAll(file) : db->load(file);
    auto const* last = static_cast<AxZedParameterDbEntry const*>(db->parameterList().last()->data());
    if (!isLoaded || db->numParameterEntries() != count || !last->parameters() == whole)
    {
        throw std::runtime_error("the database does not load");
    }
    return db;
}

void open(benchmark::State& state, int count)
{
    Growing::get();
    for (auto _ : state)
    {
        opened(count, false);
    }
    state.counters["items"] = count;
}

/// The same file as cells, which is what reading it costs without knowing what it says.
void readCells(benchmark::State& state, int count)
{
    std::string const name = Growing::get().file(count).string();
    for (auto _ : state)
    {
        std::unique_ptr<std::FILE, int (*)(std::FILE*)> const file(std::fopen(name.c_str(), "rb"), &std::fclose);
        AxlFileInputStream stream(file.get());
        benchmark::DoNotOptimize(AxcRead(stream));
    }
    state.counters["items"] = count;
}

void load(benchmark::State& state, int count)
{
    Growing::get();
    for (auto _ : state)
    {
        auto db = opened(count, true);
        state.PauseTiming();
        db.reset();
        state.ResumeTiming();
    }
    state.counters["items"] = count;
}

void save(benchmark::State& state, int count)
{
    auto const db = opened(count, true);
    AxFilename const target((Growing::get().folder() / ("saved-" + std::to_string(count) + ".opd")).string());
    for (auto _ : state)
    {
        if (!db->save(target))
        {
            state.SkipWithError("the database is not saved");
        }
    }
    state.counters["items"] = count;
}

/// What moving the text of a record through memory costs at least.
void copyText(benchmark::State& state)
{
    std::vector<char> const from(64U << 20U, 'a');
    std::vector<char> to(from.size());
    for (auto _ : state)
    {
        std::memcpy(to.data(), from.data(), from.size());
        benchmark::DoNotOptimize(to.data());
        benchmark::ClobberMemory();
    }
    state.counters["items"] = static_cast<double>(from.size()) / static_cast<double>(std::strlen(ourSource));
}
BENCHMARK(copyText)->Name("floor/copy")->Unit(benchmark::kMillisecond);
} // namespace

void registerGrowth()
{
    auto const add = [](std::string const& job, auto measure, int count, int iterations)
    {
        benchmark::RegisterBenchmark((job + '-' + std::to_string(count) + "/ours").c_str(), measure, count)
            ->Unit(benchmark::kMillisecond)
            ->Iterations(iterations);
    };
    for (int count = 100; count <= theMostRecords; count *= 10)
    {
        add("open", open, count, std::max(1, 10000 / count));
        add("load", load, count, std::max(1, 1000 / count));
    }
    for (int const count : {100, 1000})
    {
        add("save", save, count, 1);
    }
    add("open", open, theMostEntries, 1);
    add("cells", readCells, theMostEntries, 1);
}
