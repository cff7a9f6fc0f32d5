#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

/// Places in XML that the library has read, so that it is well-formed.
namespace XmlText
{
struct Range
{
    std::size_t begin;
    std::size_t end;
};

/// The byte at a line and column, both from 1; a byte-order mark has no column.
std::size_t offset(std::string_view text, std::uint32_t line, std::uint32_t column);
/// What stands between the quotes of the attribute that begins at a byte.
Range attributeValue(std::string_view text, std::size_t attribute);
/// The value of an attribute of the start tag that begins at a byte; false when it has none of that name.
bool findAttribute(std::string_view text, std::size_t tag, std::string_view name, Range& value);
/// The byte behind the start tag that begins at a byte.
std::size_t tagEnd(std::string_view text, std::size_t tag);
/// The byte behind the element that begins at a byte.
std::size_t elementEnd(std::string_view text, std::size_t tag);
/// A text as it stands between quotes of that kind.
std::string escaped(std::string_view value, char quote);
} // namespace XmlText
