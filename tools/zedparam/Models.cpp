#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "AxModelSet.h"
#include "AxSimulationObjectBaseState.h"
#include "AxSimulationObjectGroupModelSetEntry.h"
#include "CommandLine.h"
#include "Commands.h"
#include "Findings.h"
#include "Json.h"
#include "TypeArgument.h"

namespace
{
using Group = AxSimulationObjectGroupModelSetEntry;

struct ModelsOptions
{
    std::string path;
    std::string label;
    std::string type;
    bool json = false;
};

bool load(std::string const& path, AxModelSet& models)
{
    std::error_code error;
    bool const isData =
        std::filesystem::is_directory(path, error) || path.ends_with(".entity") || path.ends_with(".sog");
    return isData ? models.loadFromDataFiles(AxFilename(path)) : models.load(AxFilename(path));
}

/// The entry of the type, else the best pattern for it. A type of seven numbers is asked as an individual entity, too.
AxModelSetEntry* findByType(AxModelSet const& models, TypeArgument const& argument)
{
    AxModelSetEntry* found = models.find(argument.type);
    found = found != nullptr ? found : models.findMatchingPattern(argument.type);
    if (found != nullptr || argument.hasSuperType)
    {
        return found;
    }
    return findByType(models, {AxObjectType(argument.type.entityType()), true});
}

std::string joined(AxRwNLengthStringVector const& words)
{
    std::string text;
    for (AxString const& word : words)
    {
        text += (text.empty() ? "" : ", ") + word.string();
    }
    return text;
}

void printList(AxModelSet const& models)
{
    std::size_t typeWidth = 0;
    std::size_t labelWidth = 0;
    for (AxModelSetEntry const* entry : models)
    {
        typeWidth = std::max(typeWidth, entry->objectType().string().length());
        labelWidth = std::max(labelWidth, entry->label().length());
    }
    for (AxModelSetEntry const* entry : models)
    {
        std::string const categories = joined(entry->categories());
        std::printf("%-*s  %-*s%s%s\n", static_cast<int>(typeWidth), entry->objectType().string().c_str(),
                    static_cast<int>(categories.empty() ? 0 : labelWidth), entry->label().c_str(),
                    categories.empty() ? "" : "  ", categories.c_str());
    }
}

void printLine(char const* name, std::string const& value)
{
    if (!value.empty())
    {
        std::printf("%-11s %s\n", name, value.c_str());
    }
}

void printEntry(AxModelSetEntry const& entry)
{
    printLine("type", entry.objectType().string().string());
    printLine("label", entry.label().string());
    printLine("id", entry.uniqueId().string());
    printLine("palettes", joined(entry.onPalettes()));
    printLine("categories", joined(entry.categories()));
    printLine("platform", entry.platform().string());
    if (auto const* group = dynamic_cast<Group const*>(&entry))
    {
        printLine("file", group->filename().native());
        printLine("description", group->groupDescription().string());
        for (AxSimulationObjectBaseState const* object : group->simulationObjects())
        {
            printLine("object", object->objectType().string().string() + "  " + object->label().string());
        }
    }
}

void writeWords(JsonWriter& json, char const* key, AxRwNLengthStringVector const& words)
{
    json.key(key).beginRow();
    for (AxString const& word : words)
    {
        json.string(word.string());
    }
    json.endArray();
}

void writeEntry(JsonWriter& json, AxModelSetEntry const& entry)
{
    json.beginObject();
    json.member("type", entry.objectType().string().string());
    json.member("label", entry.label().string());
    json.member("id", entry.uniqueId().string());
    json.key("can-create").boolean(entry.canCreate());
    writeWords(json, "palettes", entry.onPalettes());
    writeWords(json, "categories", entry.categories());
    json.key("forces").beginRow();
    for (AxForceType const force : entry.forceTypes())
    {
        json.integer(static_cast<long long>(force));
    }
    json.endArray();
    if (auto const* group = dynamic_cast<Group const*>(&entry))
    {
        json.member("file", group->filename().native());
        json.key("objects").beginArray();
        for (AxSimulationObjectBaseState const* object : group->simulationObjects())
        {
            json.beginObject().member("type", object->objectType().string().string());
            json.member("label", object->label().string()).endObject();
        }
        json.endArray();
    }
    json.endObject();
}

int printFound(AxModelSet const& models, ModelsOptions const& options, TypeArgument const& type)
{
    AxModelSetEntry* const found =
        options.label.empty() ? findByType(models, type) : models.findByLabel(AxString(options.label));
    if (found == nullptr)
    {
        std::fprintf(stderr, "zedparam: no model of %s %s %s\n", options.path.c_str(),
                     options.label.empty() ? "fits" : "is called",
                     (options.label.empty() ? options.type : options.label).c_str());
        if (options.json)
        {
            JsonWriter().null().print();
        }
        return HasFindings;
    }
    if (auto* group = dynamic_cast<Group*>(found); group != nullptr && group->simulationObjects().empty())
    {
        group->readAllSimulationObject();
    }
    if (options.json)
    {
        JsonWriter json;
        writeEntry(json, *found);
        json.print();
    }
    else
    {
        printEntry(*found);
    }
    return Fine;
}

int run(ModelsOptions const& options)
{
    TypeArgument type;
    if (!options.type.empty() && !readType(options.type, type))
    {
        return CouldNotRun;
    }
    Findings findings(Findings::Print::AtOnce);
    AxModelSet models("model-set", nullptr);
    if (!load(options.path, models) && models.isEmpty())
    {
        return CouldNotRun;
    }
    int exitCode = Fine;
    if (models.isEmpty())
    {
        std::fprintf(stderr, "zedparam: \"%s\" holds no models\n", options.path.c_str());
        exitCode = HasFindings;
    }
    if (!options.label.empty() || !options.type.empty())
    {
        exitCode = printFound(models, options, type);
    }
    else if (options.json)
    {
        JsonWriter json;
        json.beginArray();
        for (AxModelSetEntry const* entry : models)
        {
            writeEntry(json, *entry);
        }
        json.endArray().print();
    }
    else
    {
        printList(models);
    }
    return findings.empty() ? exitCode : HasFindings;
}
} // namespace

void addModelsCommand(CommandLine& line)
{
    auto const options = std::make_shared<ModelsOptions>();
    line.add("models", "What users may create: all models, or one of them.", [options] { return run(*options); })
        .required("PATH", options->path, "A model set file, an .entity or .sog file, or a directory of those")
        .optional("--label", options->label, "The first model of this label")
        .optional("--type", options->type, "The model of this object type, else the best pattern for it")
        .excludes("--label")
        .flag("--json", options->json, "Print JSON");
}
