#include "Commands.h"

#include <boost/make_shared.hpp>
#include <cstdio>
#include <memory>
#include <string>

#include "AxEnvXMLWriter.h"
#include "AxZedObjectParameters.h"
#include "AxZedXmlUtils.h"
#include "CommandLine.h"
#include "ConvertDatabase.h"
#include "ConvertWriters.h"
#include "Database.h"
#include "Findings.h"
#include "Json.h"
#include "RecordFile.h"
#include "RecordJson.h"
#include "RecordText.h"
#include "WriteFile.h"

namespace
{
struct ConvertOptions
{
    std::string file;
    std::string form;
    std::string output;
    std::string database;
    std::string object;
};

/// The entity file that the records were made of, with each record's element written anew and all else as it is. Empty
/// after a report when it cannot be written.
std::string asSameEntities(Records const& records)
{
    AxEnvironmentPtr const env = records.front()->xmlEnvironment();
    bool isWhole = true;
    for (auto const& record : records)
    {
        isWhole = replaceElement(*record) && isWhole;
    }
    std::string text;
    return isWhole && AxEnvXMLWriter().writeText(env, text) ? text : std::string();
}

/// Parameter text with what the record's element holds besides.
std::string asText(AxZedObjectParameters& record)
{
    AxZedXmlUtils::keepOthers(record, false);
    return recordText(record);
}

/// The type of an object is told by the database that lists its parameter file.
void reportLostTypes(AxFilename const& file, AxZedObjectParameters const& record, Database const& database)
{
    AxObjectType const& type = record.objectType().isNull() ? record.matchType() : record.objectType();
    if (record.objectNode() == nullptr || type.isNull() || !database.entriesOf(file.native()).empty())
    {
        return;
    }
    AxDiagnostic news;
    news.severity = AxSeverity::Info;
    news.code = "type-not-written";
    news.file = file.native();
    news.text = "a parameter file does not tell the type " + type.string().string() + "; list it in a database";
    AxDiagnostics::report(std::move(news));
}

std::string asJson(Records const& records)
{
    JsonWriter json;
    json.beginArray();
    for (auto const& record : records)
    {
        json.beginObject();
        json.member("name", record->AxReaderWriter::name().view()).member("kind", record->parameterType().string());
        if (!record->objectType().isNull())
        {
            json.member("object-type", record->objectType().string().string());
        }
        json.key("values").beginObject();
        writeJsonMembers(json, *record, false);
        json.endObject().endObject();
    }
    return json.endArray().text();
}

/// Empty after a report when it cannot be written.
std::string asEntities(Records const& records)
{
    auto const env = boost::make_shared<AxEnvironment>();
    AxEnvValuePtr const root = records.size() == 1 ? AxEnvValuePtr() : env->addObject(AxString("entities"));
    bool isWhole = true;
    for (auto const& record : records)
    {
        isWhole = AxZedXmlUtils::addObject(env, root, *record) && isWhole;
    }
    std::string text;
    return isWhole && AxEnvXMLWriter().writeText(env, text) ? text : std::string();
}

int convertRecords(ConvertOptions const& options)
{
    Findings findings(Findings::Print::AtOnce);
    std::unique_ptr<Database> const database =
        options.database.empty() ? Database::openNone() : Database::open(options.database);
    if (database == nullptr)
    {
        return CouldNotRun;
    }
    AxFilename const file(options.file);
    AxSourceScope const scope(file);
    Records const records = readRecords(options.file, options.object, *database);
    if (records.empty() || (records.size() > 1 && options.form == "ope"))
    {
        std::fprintf(stderr,
                     records.empty() ? "zedparam: no record in \"%s\" can be converted\n"
                                     : "zedparam: \"%s\" holds several objects; name one with --object\n",
                     options.file.c_str());
        return CouldNotRun;
    }
    bool const isSameFile = records.front()->objectNode() != nullptr && options.object.empty();
    std::string const text = options.form == "ope"    ? asText(*records.front())
                             : options.form == "json" ? asJson(records)
                             : isSameFile             ? asSameEntities(records)
                                                      : asEntities(records);
    if (options.form == "ope")
    {
        reportLostTypes(file, *records.front(), *database);
    }
    if (text.empty())
    {
        return CouldNotRun;
    }
    if (options.output.empty())
    {
        std::fputs(text.c_str(), stdout);
    }
    else if (!writeMade(options.output, text, {&options.file, 1}))
    {
        return CouldNotRun;
    }
    return findings.empty() ? Fine : HasFindings;
}

int convert(ConvertOptions const& options)
{
    bool const isDatabase = options.file.ends_with(AxSxpParameterDb::opdFilenameExtension().string());
    if (!isDatabase)
    {
        return convertRecords(options);
    }
    if (options.form == "json" || options.output.empty())
    {
        std::fprintf(stderr, "zedparam: a database is converted to \"ope\" or \"entity\", with --output NEW.opd\n");
        return CouldNotRun;
    }
    return convertDatabase(options.file, options.output, options.form == "entity");
}
} // namespace

void addConvertCommand(CommandLine& line)
{
    auto const options = std::make_shared<ConvertOptions>();
    line.add("convert", "Writes the record in a file, or all records of a database, in another notation.",
             [options] { return convert(*options); })
        .required("FILE", options->file, "A record file (.ope), an entity file (.entity) or a database (.opd)")
        .required("--to", options->form, "The notation: ope, entity or json")
        .oneOf({"ope", "entity", "json"})
        .optional("-o,--output", options->output, "The file to write; none: the standard output")
        .optional("--database", options->database, "The database that binds the variables of a record file")
        .optional("--object", options->object, "Of an entity file, the object of this name alone");
}
