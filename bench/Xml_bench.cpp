#include "AxSxpParameterDb.h"
#include "AxZedXmlUtils.h"
#include "BenchRecord.h"
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
            record.setObjectType(AxObjectType(1, 1, 225, 1, number / 100, number % 100, 0, 1));
            AxZedXmlUtils::addObject(env, AxEnvValuePtr(), record);
            AxZedXmlUtils::writeEnvironment(
                env, AxFilename((myFolder / "data" / (std::to_string(number) + ".entity")).string()));
        }
    }
    DataRoot(DataRoot const&) = delete;
    DataRoot& operator=(DataRoot const&) = delete;
    ~DataRoot()
    {
        std::error_code ignored;
        fs::remove_all(myFolder, ignored);
    }
    fs::path database() const { return myFolder / "bench.opd"; }

private:
    fs::path myFolder;
};

void ScanDataRoot(benchmark::State& state)
{
    static DataRoot const root;
    AxFilename const file(root.database().string());
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
} // namespace
