#include "AxSxpParameterDb.h"
#include "AxZedParameterDbEntry.h"
#include "BenchRecord.h"
#include "Files.h"
#include "PlainJson.h"
#include "RecordTexts.h"
#include "record.pb.h"

#include <benchmark/benchmark.h>
#include <fcntl.h>
#include <google/protobuf/text_format.h>
#include <rapidjson/document.h>
#include <rapidjson/prettywriter.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <memory>
#include <vector>

namespace
{
using google::protobuf::TextFormat;

constexpr int theNumRecords = 10000;
namespace fs = std::filesystem;

AxObjectType typeOf(int number)
{
    return {1, 1 + number % 5, 225, 1 + number / 1000, number / 100 % 10, number / 10 % 10, number % 10, 1};
}

std::string fileName(int number)
{
    return "records/record_" + std::to_string(number);
}

/// A database of 10,000 record files as ours, as TextFormat and as JSON, in a folder of its own for this run.
class Databases
{
public:
    Databases()
    {
        fs::create_directory(folder() / "records");

        peer::Record message;
        TextFormat::ParseFromString(messageSource, &message);
        std::string messageText;
        TextFormat::PrintToString(message, &messageText);
        BenchRecord record(AxSymbolString("record"), nullptr);
        record.readText(ourSource, AxFilename("record"), AxReaderWriter::nullFilenames(),
                        AxReaderWriter::nullVariableReference());
        std::string ourText = record.writtenText();
        ourText.insert(std::string("(record").size(), "\n  (parameter-type \"bench-parameters\")");

        std::string entries = "(parameter-database\n  (version 101)\n  (parameter-files\n";
        PlainRecord plain;
        readJson(jsonSource, plain);
        std::string const jsonText = writeJson(plain);
        peer::Database database;
        database.set_version(101);
        rapidjson::StringBuffer json;
        rapidjson::PrettyWriter<rapidjson::StringBuffer> jsonWriter(json);
        jsonWriter.StartArray();
        for (int number = 0; number < theNumRecords; ++number)
        {
            AxObjectType const type = typeOf(number);
            std::string const name = fileName(number);
            entries += "    (parameter-entry\n      (object-type";
            for (auto const field : type.fields())
            {
                entries += ' ' + std::to_string(field);
            }
            entries += ")\n      (filename \"" + name + ".ope\"))\n";
            peer::Entry& entry = *database.add_entries();
            entry.set_super_type(type.superType());
            entry.set_kind(type.kind());
            entry.set_domain(type.domain());
            entry.set_country(type.country());
            entry.set_category(type.category());
            entry.set_subcategory(type.subcategory());
            entry.set_specific(type.specific());
            entry.set_extra(type.extra());
            entry.set_file(name + ".textproto");
            jsonWriter.StartObject();
            jsonWriter.Key("type");
            jsonWriter.StartArray();
            for (int const field : type.fields())
            {
                jsonWriter.Int(field);
            }
            jsonWriter.EndArray();
            jsonWriter.Key("file");
            jsonWriter.String((name + ".json").c_str());
            jsonWriter.EndObject();
            writeFile(folder() / (name + ".ope"), ourText);
            writeFile(folder() / (name + ".textproto"), messageText);
            writeFile(folder() / (name + ".json"), jsonText);
        }
        writeFile(ours(), entries + "  )\n)\n");
        std::string databaseText;
        TextFormat::PrintToString(database, &databaseText);
        writeFile(peers(), databaseText);
        jsonWriter.EndArray();
        writeFile(jsonPeers(), json.GetString());
        settleFiles();
    }

    static Databases& get()
    {
        static Databases both;
        return both;
    }

    fs::path ours() const { return folder() / "bench.opd"; }
    fs::path peers() const { return folder() / "bench.textproto"; }
    fs::path jsonPeers() const { return folder() / "bench.json"; }
    fs::path folder() const { return myFolder.path(); }

private:
    TemporaryFolder myFolder;
};

std::unique_ptr<AxSxpParameterDb> newDb()
{
    std::unique_ptr<AxSxpParameterDb> db(AxSxpParameterDb::create());
    db->init();
    return db;
}

void DatabaseFileOurs(benchmark::State& state)
{
    AxFilename const file(Databases::get().ours().string());
    for (auto _ : state)
    {
        auto db = newDb();
        if (!db->load(file) || db->numParameterEntries() != theNumRecords)
        {
            state.SkipWithError("the database does not load");
        }
    }
    state.counters["items"] = theNumRecords;
}
BENCHMARK(DatabaseFileOurs)->Name("database-file/ours")->Unit(benchmark::kMillisecond);

void DatabaseFileProtobuf(benchmark::State& state)
{
    for (auto _ : state)
    {
        peer::Database database;
        if (!TextFormat::ParseFromString(readFile(Databases::get().peers()), &database))
        {
            state.SkipWithError("TextFormat does not read");
        }
    }
    state.counters["items"] = theNumRecords;
}
BENCHMARK(DatabaseFileProtobuf)->Name("database-file/protobuf")->Unit(benchmark::kMillisecond);

struct PlainEntry
{
    std::array<int, 8> type{};
    std::string file;
};

std::vector<PlainEntry> readJsonEntries()
{
    std::string const text = readFile(Databases::get().jsonPeers());
    rapidjson::Document document;
    document.Parse(text.data(), text.size());
    std::vector<PlainEntry> entries;
    for (auto const& from : document.GetArray())
    {
        PlainEntry& entry = entries.emplace_back();
        std::transform(from["type"].Begin(), from["type"].End(), entry.type.begin(),
                       [](rapidjson::Value const& field) { return field.GetInt(); });
        entry.file.assign(from["file"].GetString(), from["file"].GetStringLength());
    }
    return entries;
}

void DatabaseFileJson(benchmark::State& state)
{
    for (auto _ : state)
    {
        if (readJsonEntries().size() != theNumRecords)
        {
            state.SkipWithError("RapidJSON does not read");
        }
    }
    state.counters["items"] = theNumRecords;
}
BENCHMARK(DatabaseFileJson)->Name("database-file/json")->Unit(benchmark::kMillisecond);

void RecordFilesOurs(benchmark::State& state)
{
    AxFilename const file(Databases::get().ours().string());
    for (auto _ : state)
    {
        auto db = newDb();
        bool const loaded = db->loadAll(file);
        auto const* last = dynamic_cast<BenchParameters*>(db->lookup(typeOf(theNumRecords - 1)));
        if (!loaded || !last || last->myComponents.count() != 12)
        {
            state.SkipWithError("the records do not load");
        }
        state.PauseTiming();
        db.reset();
        state.ResumeTiming();
    }
    state.counters["items"] = theNumRecords;
}
BENCHMARK(RecordFilesOurs)->Name("record-files/ours")->Unit(benchmark::kMillisecond)->Iterations(1);

void RecordFilesProtobuf(benchmark::State& state)
{
    for (auto _ : state)
    {
        peer::Database database;
        bool loaded = TextFormat::ParseFromString(readFile(Databases::get().peers()), &database);
        std::vector<std::unique_ptr<peer::Record>> records;
        for (peer::Entry const& entry : database.entries())
        {
            records.push_back(std::make_unique<peer::Record>());
            std::string const text = readFile(Databases::get().folder() / entry.file());
            loaded = TextFormat::ParseFromString(text, records.back().get()) && loaded;
        }
        if (!loaded)
        {
            state.SkipWithError("TextFormat does not read");
        }
        state.PauseTiming();
        records.clear();
        state.ResumeTiming();
    }
    state.counters["items"] = theNumRecords;
}
BENCHMARK(RecordFilesProtobuf)->Name("record-files/protobuf")->Unit(benchmark::kMillisecond)->Iterations(1);

void RecordFilesJson(benchmark::State& state)
{
    for (auto _ : state)
    {
        std::vector<std::unique_ptr<PlainRecord>> records;
        bool loaded = true;
        for (PlainEntry const& entry : readJsonEntries())
        {
            records.push_back(std::make_unique<PlainRecord>());
            loaded = readJson(readFile(Databases::get().folder() / entry.file), *records.back()) && loaded;
        }
        if (!loaded)
        {
            state.SkipWithError("RapidJSON does not read");
        }
        state.PauseTiming();
        records.clear();
        state.ResumeTiming();
    }
    state.counters["items"] = theNumRecords;
}
BENCHMARK(RecordFilesJson)->Name("record-files/json")->Unit(benchmark::kMillisecond)->Iterations(1);

/// What every reader of the files does at least.
void RecordFilesOnly(benchmark::State& state)
{
    std::vector<char> buffer(64 * 1024);
    for (auto _ : state)
    {
        for (int number = 0; number < theNumRecords; ++number)
        {
            int const file = open((Databases::get().folder() / (fileName(number) + ".ope")).c_str(), O_RDONLY);
            benchmark::DoNotOptimize(read(file, buffer.data(), buffer.size()));
            close(file);
        }
    }
    state.counters["items"] = theNumRecords;
}
BENCHMARK(RecordFilesOnly)->Name("record-files/open-read-close")->Unit(benchmark::kMillisecond)->Iterations(1);
} // namespace
