#pragma once

#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

#include "AxKeyword.h"

class AxReaderWriter;
class AxRwList;
class JsonWriter;

/// What there is to know of one keyword of one type.
struct KeywordInfo
{
    std::string path; ///< from the record or component inwards, such as "dr-thresholds/translation"
    std::vector<std::string> aliases;
    std::string kind;        ///< such as "real" or "list of emitter-beam-entry"
    std::string defaultText; ///< as in parameter text; empty for records and lists
    std::string unit;
    std::string help;
    AxRange range;
    std::string from; ///< the type that declares it, else its class

    std::string_view keyword() const { return std::string_view(path).substr(path.rfind('/') + 1); }
    bool isNested() const { return path.find('/') != std::string::npos; }
    /// Kind, unit and range in words.
    std::string valueText() const;
};

/// One type of record, component or other part with all its keywords in their order, those of nested records after
/// their own.
struct TypeInfo
{
    enum class Kind
    {
        Record,
        Component,
        Part ///< what stands inside of those, or in files of its own
    };

    std::string name;
    std::string className;
    Kind kind = Kind::Record;
    std::vector<KeywordInfo> keywords;

    char const* kindName() const;
    std::size_t ownKeywords() const;
};

/// Every type there is: records, components, parts.
std::vector<TypeInfo> const& knownTypes();

/// A first element of a list, as the list itself makes it; null when it needs to be told a type, or for elements that
/// are values.
AxReaderWriter* sampleElement(AxRwList& list);
/// What the class is called in words: "AxRwOffsetVector" as "offset-vector".
std::string kindOf(std::type_info const& type);

/// The object members "kind" to "from", into an object that was begun.
void writeKeyword(JsonWriter& json, KeywordInfo const& keyword);
