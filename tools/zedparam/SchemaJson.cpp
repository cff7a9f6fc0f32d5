#include "RecordValue.h"
#include "Schema.h"

#include <cmath>
#include <memory>

#include "AxComponentDescriptorList.h"
#include "AxReaderWriterFile.h"
#include "AxRwList.h"
#include "AxZedObjectParameters.h"
#include "Catalogue.h"
#include "Factories.h"
#include "Findings.h"
#include "Json.h"
#include "RecordJson.h"

ValueShape shapeOf(AxReaderWriter& value)
{
    JsonWriter json;
    writeJson(json, value, true);
    std::string const& text = json.text();
    switch (text.front())
    {
    case '"':
        return ValueShape::Text;
    case 't':
    case 'f':
        return ValueShape::Boolean;
    case '[':
        return text.find_first_of("0123456789") < text.find_first_of("\"{") ? ValueShape::Numbers : ValueShape::Other;
    case '{':
    case 'n':
        return ValueShape::Other;
    default:
        return text.find_first_of(".e") == std::string::npos ? ValueShape::Integer : ValueShape::Real;
    }
}

namespace
{
constexpr int theDeepestSchema = 6;

void writeMembers(JsonWriter& json, AxReaderWriter& rw, int depth);

void writeLimits(JsonWriter& json, AxRange const& range)
{
    for (auto const& [name, limit] : {std::pair("minimum", range.low), std::pair("maximum", range.high)})
    {
        if (std::isfinite(limit))
        {
            json.key(name).real(limit);
        }
    }
}

void writeElementSchema(JsonWriter& json, AxRwList& list, int depth)
{
    json.key("type").string("array").key("items").beginObject();
    if (dynamic_cast<AxComponentDescriptorList*>(&list) != nullptr)
    {
        json.member("$ref", "#/$defs/component");
    }
    else
    {
        json.member("type", "object");
        AxReaderWriter* const element = sampleElement(list);
        if (element != nullptr && hasMembers(*element) && depth < theDeepestSchema)
        {
            writeMembers(json, *element, depth + 1);
        }
    }
    json.endObject();
}

void writeValueSchema(JsonWriter& json, AxReaderWriter& value, AxRange const& range)
{
    switch (shapeOf(value))
    {
    case ValueShape::Text:
        json.member("type", "string");
        break;
    case ValueShape::Boolean:
        json.member("type", "boolean");
        break;
    case ValueShape::Integer:
        json.member("type", "integer");
        writeLimits(json, range);
        break;
    case ValueShape::Real:
        json.member("type", "number");
        writeLimits(json, range);
        break;
    case ValueShape::Numbers:
        json.member("type", "array").key("items").beginObject().member("type", "number").endObject();
        break;
    case ValueShape::Other:
        break;
    }
}

void writeMember(JsonWriter& json, AxReaderWriter& member, AxKeyword const* keyword, int depth)
{
    json.beginObject();
    if (keyword != nullptr && *keyword->help != '\0')
    {
        std::string const unit = *keyword->unit != '\0' ? std::string(" [") + keyword->unit + "]" : std::string();
        json.member("description", keyword->help + unit);
    }
    auto* const list = dynamic_cast<AxRwList*>(&member);
    if (list != nullptr && !hasMembers(member))
    {
        writeElementSchema(json, *list, depth);
    }
    else if (hasMembers(member))
    {
        json.member("type", "object");
        if (depth < theDeepestSchema)
        {
            writeMembers(json, member, depth + 1);
        }
    }
    else if (dynamic_cast<AxReaderWriterFile*>(&member) == nullptr) // which stands for what its file holds
    {
        writeValueSchema(json, member, keyword != nullptr ? keyword->range : AxRange());
    }
    json.endObject();
}

/// The object member "properties".
void writeMembers(JsonWriter& json, AxReaderWriter& rw, int depth)
{
    AxReaderWriterRegistry const* const registry = rw.registryIfAny();
    json.key("properties").beginObject();
    for (std::size_t i = 0; registry != nullptr && i < registry->size(); ++i)
    {
        AxRegistryEntry const entry = registry->entry(i);
        if (!entry.content && !entry.keyword.isNull())
        {
            json.key(entry.keyword.view());
            writeMember(json, *entry.member, registry->description(entry.member), depth);
        }
    }
    if (auto* const list = dynamic_cast<AxRwList*>(&rw))
    {
        json.key("elements").beginObject();
        writeElementSchema(json, *list, depth);
        json.endObject();
    }
    json.endObject();
}

/// "allOf": the object's definition by the type that its member `keyword` names.
void writeDispatch(JsonWriter& json, char const* keyword, char const* where, TypeInfo::Kind kind)
{
    json.key("allOf").beginArray();
    for (TypeInfo const& type : knownTypes())
    {
        if (type.kind == kind)
        {
            json.beginObject().key("if").beginObject().key("properties").beginObject().key(keyword);
            json.beginObject().member("const", type.name).endObject().endObject();
            json.key("required").beginRow().string(keyword).endArray().endObject();
            json.key("then").beginObject();
            if (*where != '\0')
            {
                json.key("properties").beginObject().key(where).beginObject();
                json.member("$ref", "#/$defs/" + type.name).endObject().endObject();
            }
            else
            {
                json.member("$ref", "#/$defs/" + type.name);
            }
            json.endObject().endObject();
        }
    }
    json.endArray();
}
} // namespace

std::string jsonSchema()
{
    installedFactories();
    Findings const muted(Findings::Print::Never);
    JsonWriter json;
    json.beginObject().member("$schema", "https://json-schema.org/draft/2020-12/schema");
    json.member("title", "Records of a parameter database, as zedparam convert --to json writes them");
    json.member("type", "array").key("items").beginObject().member("type", "object");
    json.key("required").beginRow().string("kind").string("values").endArray();
    json.key("properties").beginObject().key("kind").beginObject().key("enum").beginArray();
    for (TypeInfo const& type : knownTypes())
    {
        if (type.kind == TypeInfo::Kind::Record)
        {
            json.string(type.name);
        }
    }
    json.endArray().endObject().key("values").beginObject().member("type", "object").endObject().endObject();
    writeDispatch(json, "kind", "values", TypeInfo::Kind::Record);
    json.endObject().key("$defs").beginObject().key("component").beginObject().member("type", "object");
    writeDispatch(json, "component-descriptor-type", "", TypeInfo::Kind::Component);
    json.endObject();
    for (TypeInfo const& type : knownTypes())
    {
        std::unique_ptr<AxReaderWriter> sample;
        if (type.kind == TypeInfo::Kind::Part)
        {
            continue;
        }
        if (type.kind == TypeInfo::Kind::Record)
        {
            sample.reset(AxZedObjectParameters::createParameters(type.name.c_str()));
        }
        else
        {
            sample.reset(AxComponentDescriptor::createComponentDescriptor(type.name.c_str()));
        }
        json.key(type.name).beginObject().member("type", "object");
        writeMembers(json, *sample, 0);
        json.endObject();
    }
    json.endObject().endObject();
    return json.text();
}
