#include "PlainJson.h"

#include <rapidjson/document.h>
#include <rapidjson/prettywriter.h>
#include <rapidjson/stringbuffer.h>

#include <iterator>

namespace
{
using Value = rapidjson::Value;
using Writer = rapidjson::PrettyWriter<rapidjson::StringBuffer>;

std::string_view textOf(Value const& value)
{
    return {value.GetString(), value.GetStringLength()};
}

bool take(Value const& from, double& to)
{
    return from.IsNumber() && (to = from.GetDouble(), true);
}
bool take(Value const& from, int& to)
{
    return from.IsInt() && (to = from.GetInt(), true);
}
bool take(Value const& from, bool& to)
{
    return from.IsBool() && (to = from.GetBool(), true);
}
bool take(Value const& from, std::string& to)
{
    return from.IsString() && (to = textOf(from), true);
}
bool take(Value const& from, std::array<double, 3>& to)
{
    return from.IsArray() && from.Size() == 3 && take(from[0], to[0]) && take(from[1], to[1]) && take(from[2], to[2]);
}

/// Members mostly come in the table's order, so the next one is tried before the table is searched.
template <class T, class Other>
bool fill(Value const& object, T& record, Other const& takeOther)
{
    std::size_t const count = std::size(T::table);
    std::size_t next = 0;
    for (auto const& member : object.GetObject())
    {
        std::string_view const name = textOf(member.name);
        std::size_t tried = 0;
        while (tried < count && T::table[next].name != name)
        {
            next = (next + 1) % count;
            ++tried;
        }
        if (tried == count)
        {
            if (!takeOther(name, member.value))
            {
                return false;
            }
            continue;
        }
        if (!std::visit([&](auto place) { return take(member.value, record.*place); }, T::table[next].place))
        {
            return false;
        }
        next = (next + 1) % count;
    }
    return true;
}

void put(Writer& writer, double value)
{
    writer.Double(value);
}
void put(Writer& writer, int value)
{
    writer.Int(value);
}
void put(Writer& writer, bool value)
{
    writer.Bool(value);
}
void put(Writer& writer, std::string const& value)
{
    writer.String(value.data(), static_cast<rapidjson::SizeType>(value.size()));
}
void put(Writer& writer, std::array<double, 3> const& value)
{
    writer.StartArray();
    for (double const number : value)
    {
        writer.Double(number);
    }
    writer.EndArray();
}

template <class T>
void putMembers(Writer& writer, T const& record)
{
    for (auto const& field : T::table)
    {
        writer.Key(field.name.data(), static_cast<rapidjson::SizeType>(field.name.size()));
        std::visit([&](auto place) { put(writer, record.*place); }, field.place);
    }
}
} // namespace

bool readJson(std::string_view text, PlainRecord& record)
{
    rapidjson::Document document;
    document.Parse(text.data(), text.size());
    if (document.HasParseError() || !document.IsObject())
    {
        return false;
    }
    auto const nothingElse = [](std::string_view, Value const&) { return false; };
    auto const takeComponents = [&](std::string_view name, Value const& value)
    {
        if (name != "components" || !value.IsArray())
        {
            return false;
        }
        record.components.resize(value.Size());
        for (rapidjson::SizeType i = 0; i < value.Size(); ++i)
        {
            if (!fill(value[i], record.components[i], nothingElse))
            {
                return false;
            }
        }
        return true;
    };
    return fill(document, record, takeComponents);
}

std::string writeJson(PlainRecord const& record)
{
    rapidjson::StringBuffer buffer;
    Writer writer(buffer);
    writer.StartObject();
    putMembers(writer, record);
    writer.Key("components");
    writer.StartArray();
    for (PlainDescriptor const& component : record.components)
    {
        writer.StartObject();
        putMembers(writer, component);
        writer.EndObject();
    }
    writer.EndArray();
    writer.EndObject();
    return {buffer.GetString(), buffer.GetSize()};
}
