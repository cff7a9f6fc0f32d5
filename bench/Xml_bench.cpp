#include "AxEnvXMLReader.h"
#include "AxSxpParameterDb.h"
#include "AxZedXmlUtils.h"
#include "BenchRecord.h"
#include "Files.h"
#include "RecordTexts.h"

#include <benchmark/benchmark.h>
#include <boost/make_shared.hpp>
#include <pugixml.hpp>

#include <filesystem>
#include <fstream>
#include <memory>
#include <stdexcept>
#include <stdlib.h>
#include <string>
#include <vector>

namespace
{
namespace fs = std::filesystem;

constexpr int theNumFiles = 1000;

bool readText(std::string_view text, AxReaderWriter& record)
{
    static AxFilename const name("record");
    return record.readText(text, name, AxReaderWriter::nullFilenames(), AxReaderWriter::nullVariableReference());
}

/// The record in both notations.
struct Notations
{
    Notations()
    {
        BenchRecord record(AxSymbolString("record"), nullptr);
        BenchRecord back(AxSymbolString("record"), nullptr);
        readText(ourSource, record);
        text = record.writtenText();
        xml = record.toXml();
        if (!back.fromXml(xml) || back.writtenText() != text)
        {
            throw std::runtime_error("the record does not come back from XML");
        }
    }
    std::string text;
    AxString xml;
};

Notations const& notations()
{
    static Notations const both;
    return both;
}

void ReadXmlOurs(benchmark::State& state)
{
    AxString const& xml = notations().xml;
    for (auto _ : state)
    {
        BenchRecord record(AxSymbolString("record"), nullptr);
        benchmark::DoNotOptimize(record.fromXml(xml));
    }
    state.counters["text"] = static_cast<double>(xml.string().size());
}
BENCHMARK(ReadXmlOurs)->Name("read-xml/ours");

void ParseXmlThenReadText(benchmark::State& state)
{
    std::string const& xml = notations().xml.string();
    for (auto _ : state)
    {
        pugi::xml_document document;
        benchmark::DoNotOptimize(document.load_buffer(xml.data(), xml.size()));
        BenchRecord record(AxSymbolString("record"), nullptr);
        benchmark::DoNotOptimize(readText(notations().text, record));
    }
}
BENCHMARK(ParseXmlThenReadText)->Name("read-xml/pugixml-and-text");

/// A tree of a document, looked into or not.
void MakeTree(benchmark::State& state)
{
    AxString const& xml = notations().xml;
    for (auto _ : state)
    {
        benchmark::DoNotOptimize(AxEnvXMLReader::readText(xml.string(), AxFilename()));
    }
}
BENCHMARK(MakeTree)->Name("xml-tree/ours");

void ParseXml(benchmark::State& state)
{
    std::string const& xml = notations().xml.string();
    for (auto _ : state)
    {
        pugi::xml_document document;
        benchmark::DoNotOptimize(document.load_buffer(xml.data(), xml.size()));
    }
}
BENCHMARK(ParseXml)->Name("xml-tree/pugixml");

/// A data root with a small record in each file.
class DataRoot
{
public:
    DataRoot()
    {
        std::string folder = (fs::temp_directory_path() / "zedobjparam-entities-XXXXXX").string();
        if (!mkdtemp(folder.data()))
        {
            throw std::runtime_error("cannot make a temporary folder");
        }
        myFolder = folder;
        fs::create_directory(myFolder / "data");
        std::ofstream(database()) << "(parameter-database (variable-bindings (data-root \"$(opd-dir)/data\")))";
        BenchParameters record(AxSymbolString("record"), nullptr);
        record.init();
        readText(ourSource, record);
        for (int number = 0; number < theNumFiles; ++number)
        {
            auto const env = boost::make_shared<AxEnvironment>();
            record.setObjectType(typeOf(number));
            AxZedXmlUtils::addObject(env, AxEnvValuePtr(), record);
            AxZedXmlUtils::writeEnvironment(
                env, AxFilename((myFolder / "data" / (std::to_string(number) + ".entity")).string()));
        }
        settleFiles();
    }
    DataRoot(DataRoot const&) = delete;
    DataRoot& operator=(DataRoot const&) = delete;
    ~DataRoot()
    {
        std::error_code ignored;
        fs::remove_all(myFolder, ignored);
    }
    static AxObjectType typeOf(int number) { return {1, 1, 225, 1, number / 100, number % 100, 0, 1}; }
    static DataRoot const& get()
    {
        static DataRoot const root;
        return root;
    }
    fs::path database() const { return myFolder / "bench.opd"; }
    fs::path data() const { return myFolder / "data"; }

private:
    fs::path myFolder;
};

void ScanDataRoot(benchmark::State& state)
{
    AxFilename const file(DataRoot::get().database().string());
    for (auto _ : state)
    {
        AxSxpParameterDb db;
        if (!db.init() || !db.load(file) || db.numParameterEntries() != theNumFiles)
        {
            state.SkipWithError("the data root is not read");
        }
    }
    state.counters["items"] = theNumFiles;
}
BENCHMARK(ScanDataRoot)->Name("entity-scan/ours")->Unit(benchmark::kMillisecond);

void ParseDataRoot(benchmark::State& state)
{
    fs::path const root = DataRoot::get().data();
    for (auto _ : state)
    {
        for (fs::directory_entry const& file : fs::recursive_directory_iterator(root))
        {
            pugi::xml_document document;
            benchmark::DoNotOptimize(document.load_file(file.path().c_str()));
        }
    }
    state.counters["items"] = theNumFiles;
}
BENCHMARK(ParseDataRoot)->Name("entity-scan/pugixml")->Unit(benchmark::kMillisecond);

/// Every record of the data root, looked up in a database that was just loaded.
void LoadEntities(benchmark::State& state)
{
    AxFilename const file(DataRoot::get().database().string());
    for (auto _ : state)
    {
        state.PauseTiming();
        auto db = std::make_unique<AxSxpParameterDb>();
        db->init();
        db->load(file);
        state.ResumeTiming();
        for (int number = 0; number < theNumFiles; ++number)
        {
            if (!db->lookup(DataRoot::typeOf(number)))
            {
                state.SkipWithError("a record is not read");
                return;
            }
        }
        state.PauseTiming();
        db.reset();
        state.ResumeTiming();
    }
    state.counters["items"] = theNumFiles;
}
BENCHMARK(LoadEntities)->Name("entity-files/ours")->Unit(benchmark::kMillisecond);

void ParseEntitiesThenReadText(benchmark::State& state)
{
    fs::path const root = DataRoot::get().data();
    for (auto _ : state)
    {
        std::vector<std::unique_ptr<BenchParameters>> records;
        records.reserve(theNumFiles);
        for (int number = 0; number < theNumFiles; ++number)
        {
            pugi::xml_document document;
            document.load_file((root / (std::to_string(number) + ".entity")).c_str());
            records.push_back(std::make_unique<BenchParameters>(AxSymbolString("record"), nullptr));
            records.back()->init();
            readText(notations().text, *records.back());
        }
        state.PauseTiming();
        records.clear();
        state.ResumeTiming();
    }
    state.counters["items"] = theNumFiles;
}
BENCHMARK(ParseEntitiesThenReadText)->Name("entity-files/pugixml-and-text")->Unit(benchmark::kMillisecond);
} // namespace
