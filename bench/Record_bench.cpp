#include "Record_bench.h"

#include "Allocations.h"
#include "AxComponentDescriptorFactory.h"
#include "AxlFunctions.h"
#include "AxlInputStream.h"
#include "BenchRecord.h"
#include "PlainJson.h"
#include "RecordTexts.h"
#include "record.pb.h"

#include <benchmark/benchmark.h>
#include <google/protobuf/text_format.h>
#include <google/protobuf/util/message_differencer.h>

#include <memory>
#include <stdexcept>
#include <vector>

namespace
{
using google::protobuf::TextFormat;
using google::protobuf::util::MessageDifferencer;

bool readOurs(std::string_view text, AxReaderWriter& record)
{
    static AxFilename const name("record");
    return record.readText(text, name, AxReaderWriter::nullFilenames(), AxReaderWriter::nullVariableReference());
}

void require(bool condition, char const* what)
{
    if (!condition)
    {
        throw std::runtime_error(std::string("the forms of the record differ: ") + what);
    }
}

/// The three forms of the record, each in its library's object and in its library's own layout of text.
struct Forms
{
    BenchRecord ours{AxSymbolString("record"), nullptr};
    peer::Record message;
    PlainRecord plain;
    std::string ourText;
    std::string messageText;
    std::string jsonText;

    Forms()
    {
        require(readOurs(ourSource, ours) && ours.keptItems().empty(), "ours does not read");
        require(TextFormat::ParseFromString(messageSource, &message), "TextFormat does not read");
        require(readJson(jsonSource, plain), "JSON does not read");
        ourText = ours.writtenText();
        TextFormat::PrintToString(message, &messageText);
        jsonText = writeJson(plain);

        require(ours.myHullMass.value() == message.hull_mass() && plain.hull_mass == message.hull_mass(), "a real");
        require(ours.myHullPriority.value() == message.hull_priority() &&
                    plain.hull_priority == message.hull_priority(),
                "an integer");
        require(ours.myComponents.count() == message.components_size() &&
                    plain.components.size() == static_cast<std::size_t>(message.components_size()),
                "the number of components");
        auto const* last = static_cast<BenchDescriptor const*>(ours.myComponents.element(ours.myComponents.last()));
        peer::Vector const& offset = message.components().rbegin()->mount_offset();
        require(last->myMountOffset.value() == AxVector64(offset.x(), offset.y(), offset.z()) &&
                    plain.components.back().mount_offset == std::array{offset.x(), offset.y(), offset.z()},
                "the last vector");
    }
};

Forms& forms()
{
    static Forms all;
    return all;
}

void ReadOurs(benchmark::State& state)
{
    std::string const& text = forms().ourText;
    for (auto _ : state)
    {
        BenchRecord record(AxSymbolString("record"), nullptr);
        benchmark::DoNotOptimize(readOurs(text, record));
    }
    state.counters["text"] = static_cast<double>(text.size());
}
BENCHMARK(ReadOurs)->Name("read/ours");

/// The same by the cell operations: the whole text as cells, and each member from its own.
void ReadCells(benchmark::State& state)
{
    std::string const& text = forms().ourText;
    for (auto _ : state)
    {
        BenchRecord record(AxSymbolString("record"), nullptr);
        AxlInputStream stream(text);
        record.getSelf(AxcRead(stream), AxReaderWriter::nullFilenames(), AxReaderWriter::nullVariableReference());
        benchmark::DoNotOptimize(record);
    }
}
BENCHMARK(ReadCells)->Name("read-cells/ours");

void ReadProtobuf(benchmark::State& state)
{
    std::string const& text = forms().messageText;
    for (auto _ : state)
    {
        peer::Record record;
        benchmark::DoNotOptimize(TextFormat::ParseFromString(text, &record));
    }
    state.counters["text"] = static_cast<double>(text.size());
}
BENCHMARK(ReadProtobuf)->Name("read/protobuf");

void ReadJson(benchmark::State& state)
{
    std::string const& text = forms().jsonText;
    for (auto _ : state)
    {
        PlainRecord record;
        benchmark::DoNotOptimize(readJson(text, record));
    }
    state.counters["text"] = static_cast<double>(text.size());
}
BENCHMARK(ReadJson)->Name("read/json");

void ReadShuffledOurs(benchmark::State& state)
{
    for (auto _ : state)
    {
        BenchRecord record(AxSymbolString("record"), nullptr);
        benchmark::DoNotOptimize(readOurs(ourShuffled, record));
    }
}
BENCHMARK(ReadShuffledOurs)->Name("read-shuffled/ours");

void ReadShuffledProtobuf(benchmark::State& state)
{
    std::string const text = messageShuffled;
    for (auto _ : state)
    {
        peer::Record record;
        benchmark::DoNotOptimize(TextFormat::ParseFromString(text, &record));
    }
}
BENCHMARK(ReadShuffledProtobuf)->Name("read-shuffled/protobuf");

void WriteOurs(benchmark::State& state)
{
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(forms().ours.writtenText());
    }
}
BENCHMARK(WriteOurs)->Name("write/ours");

void WriteProtobuf(benchmark::State& state)
{
    for (auto _ : state)
    {
        std::string text;
        TextFormat::PrintToString(forms().message, &text);
        benchmark::DoNotOptimize(text);
    }
}
BENCHMARK(WriteProtobuf)->Name("write/protobuf");

void WriteJson(benchmark::State& state)
{
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(writeJson(forms().plain));
    }
}
BENCHMARK(WriteJson)->Name("write/json");

void CopyOurs(benchmark::State& state)
{
    for (auto _ : state)
    {
        BenchRecord copy(AxSymbolString("record"), nullptr);
        copy = forms().ours;
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(CopyOurs)->Name("copy/ours");

void CopyProtobuf(benchmark::State& state)
{
    for (auto _ : state)
    {
        peer::Record copy;
        copy.CopyFrom(forms().message);
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(CopyProtobuf)->Name("copy/protobuf");

void CopyAgainOurs(benchmark::State& state)
{
    BenchRecord copy(AxSymbolString("record"), nullptr);
    for (auto _ : state)
    {
        copy = forms().ours;
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(CopyAgainOurs)->Name("copy-again/ours");

void CopyAgainProtobuf(benchmark::State& state)
{
    peer::Record copy;
    for (auto _ : state)
    {
        copy.CopyFrom(forms().message);
        benchmark::DoNotOptimize(copy);
    }
}
BENCHMARK(CopyAgainProtobuf)->Name("copy-again/protobuf");

void CompareOurs(benchmark::State& state)
{
    BenchRecord copy(AxSymbolString("record"), nullptr);
    copy = forms().ours;
    for (auto _ : state)
    {
        bool const same = forms().ours == copy;
        if (!same)
        {
            state.SkipWithError("the copy differs");
        }
    }
}
BENCHMARK(CompareOurs)->Name("compare/ours");

void CompareProtobuf(benchmark::State& state)
{
    peer::Record const copy(forms().message);
    for (auto _ : state)
    {
        if (!MessageDifferencer::Equals(forms().message, copy))
        {
            state.SkipWithError("the copy differs");
        }
    }
}
BENCHMARK(CompareProtobuf)->Name("compare/protobuf");

void CompareSerialised(benchmark::State& state)
{
    peer::Record const copy(forms().message);
    for (auto _ : state)
    {
        if (forms().message.SerializeAsString() != copy.SerializeAsString())
        {
            state.SkipWithError("the copy differs");
        }
    }
}
BENCHMARK(CompareSerialised)->Name("compare/serialised");

void ConstructOurs(benchmark::State& state)
{
    std::vector<AxSymbolString> names;
    for (auto const* component : forms().ours.myComponents)
    {
        names.push_back(component->AxReaderWriter::name());
    }
    for (auto _ : state)
    {
        BenchRecord record(AxSymbolString("record"), nullptr);
        for (AxSymbolString const name : names)
        {
            record.myComponents.add(new BenchDescriptor(name, nullptr));
        }
        benchmark::DoNotOptimize(record);
    }
}
BENCHMARK(ConstructOurs)->Name("construct/ours");

void MemoryOurs(benchmark::State& state)
{
    constexpr std::size_t count = 200;
    std::vector<std::unique_ptr<BenchRecord>> records;
    double used = 0;
    for (auto _ : state)
    {
        records.clear();
        std::size_t const before = heapUse();
        for (std::size_t i = 0; i < count; ++i)
        {
            records.push_back(std::make_unique<BenchRecord>(AxSymbolString("record"), nullptr));
            readOurs(forms().ourText, *records.back());
        }
        used = static_cast<double>(heapUse() - before) / count;
    }
    state.counters["bytes"] = used;
}
BENCHMARK(MemoryOurs)->Name("memory/ours")->Iterations(2);

void MemoryProtobuf(benchmark::State& state)
{
    std::size_t used = 0;
    for (auto _ : state)
    {
        peer::Record record;
        TextFormat::ParseFromString(forms().messageText, &record);
        used = record.SpaceUsedLong();
    }
    state.counters["bytes"] = static_cast<double>(used);
}
BENCHMARK(MemoryProtobuf)->Name("memory/protobuf")->Iterations(2);

/// A number member; an empty list.
void MemoryMembers(benchmark::State& state, std::size_t size)
{
    for (auto _ : state)
    {
        state.counters["bytes"] = static_cast<double>(size);
    }
}
BENCHMARK_CAPTURE(MemoryMembers, number, sizeof(AxRwReal))->Name("memory-number/ours")->Iterations(1);
BENCHMARK_CAPTURE(MemoryMembers, list, sizeof(AxComponentDescriptorList))->Name("memory-list/ours")->Iterations(1);

/// The second record, so that what all records share is there already.
void AllocationsOurs(benchmark::State& state)
{
    std::size_t count = 0;
    for (auto _ : state)
    {
        auto const first = std::make_unique<BenchRecord>(AxSymbolString("record"), nullptr);
        readOurs(forms().ourText, *first);
        std::size_t const before = allocationCount();
        auto const second = std::make_unique<BenchRecord>(AxSymbolString("record"), nullptr);
        readOurs(forms().ourText, *second);
        count = allocationCount() - before;
    }
    state.counters["count"] = static_cast<double>(count);
}
BENCHMARK(AllocationsOurs)->Name("allocations/ours")->Iterations(2);

void ConstructDescriptor(benchmark::State& state, char const* type)
{
    for (auto _ : state)
    {
        delete AxComponentDescriptor::createComponentDescriptor(type);
    }
}
} // namespace

void registerLargestDescriptor()
{
    constexpr char const* type = "iff-controller-descriptor";
    if (AxComponentDescriptor::factory()->lookup(AxStringHashKey(type)))
    {
        benchmark::RegisterBenchmark("construct-largest/ours", &ConstructDescriptor, type);
    }
}
