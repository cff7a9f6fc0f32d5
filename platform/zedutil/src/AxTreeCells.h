#pragma once

#include "AxReaderWriter.h"
#include "AxlCellPool.h"

#include <memory>
#include <string>
#include <string_view>

/// Nodes of a tree as the cells of the text that says the same. Cells have the place of the node they come from.
namespace AxTreeCells
{
inline constexpr char const* theTextTag = "sexp";
inline constexpr char const* theXmlHead = "xml-item";
inline constexpr char const* theAnyTag = "readerWriter";
inline constexpr char const* theAnyListTag = "list";
inline constexpr char const* theAttributesTag = "attributes";
inline constexpr char const* theObjectTypesTag = "objectTypes";

/// "(name item...)" of an object; `guide` is what it will be read by, null when that does not exist yet.
AxlObjPtr expression(AxEnvObject const& object, AxSymbolString name, AxReaderWriter const* guide);
/// The item of an attribute; `member` is what will take it, or null.
AxlObjPtr attributeItem(AxEnvObject const& object, AxEnvObject::Attribute const& attribute,
                        AxReaderWriter const* member);
AxlObjPtr attributeItem(AxSymbolString name, std::string_view text, AxlCellPool::Place place,
                        AxReaderWriter const* member);
/// The item of a child of `parent`; the end of text for one that has none: text, comments, unknown elements that no
/// word names.
AxlObjPtr childItem(AxEnvValue const& child, AxEnvObject const& parent, AxReaderWriter const* guide);
/// Whether that child has an item, which is told without making it.
bool hasItem(AxEnvValue const& child, AxEnvObject const& parent, AxReaderWriter const* guide);
/// The member of a record or list that an attribute, or a child by its name or tag, belongs to; or null.
AxReaderWriter* memberFor(AxReaderWriter const* record, AxString const& keyword);
AxReaderWriter* memberFor(AxReaderWriter const* record, AxEnvObject const& child);
/// Whether the attribute belongs to the form of the element rather than to what it holds.
bool isOfForm(AxEnvObject const& object, AxString const& attribute, AxReaderWriter const* guide);
/// Whether children with that tag are the parts that the value of an element with the tag `parent` consists of.
bool isPartOfValue(std::string_view parent, std::string_view tag);
/// Whether children with that tag may be elements of the list. `isNamed`: they have a name or a type.
bool isElement(AxReaderWriter const& list, std::string_view tag, bool isNamed);
/// What the element stands for: the content of a member that names a file, if it is given in place; else `guide`.
AxReaderWriter* inlined(AxEnvObject const& object, AxReaderWriter* guide);

/// An attribute's text as the cell of a value.
AxlObjPtr attributeCell(std::string_view text, AxEnvValue const& place, AxReaderWriter const* member);
/// An empty object of the type that an element names by its tag or, if not null, `type`; null when it names none.
std::unique_ptr<AxReaderWriter> modelOf(AxString const& tag, AxString const* type);
/// The word that an element of a list begins with. `name` and `type` may be null.
AxSymbolString elementHead(AxString const& tag, AxString const* name, AxString const* type);
/// The one cell in a text; nil when there is none, or more than one.
AxlObjPtr cellIn(AxString const& text);
/// All expressions in a text, as a list. Throws AxlSyntaxError.
AxlObjPtr parsed(std::string_view text);
std::string printed(AxlObj const* cell);
/// A piece of XML as an item of text.
std::string xmlItem(std::string const& xml);
/// Whether a word is read as a number, also in the forms that have no digits.
bool isNumeral(std::string_view word);
} // namespace AxTreeCells

/// Nodes as a piece of XML in a text, and back.
namespace AxXmlFragment
{
/// A node and all below it, with their places.
AxEnvValuePtr copyOf(AxEnvValue const& node);
std::string ofNode(AxEnvValue const& node);
std::string ofAttribute(AxEnvObject::Attribute const& attribute);
/// Adds what the text says to `node`; false, and a report, when it is no XML.
bool addTo(AxString const& text, AxEnvObject& node);
/// Tells of what nobody knows; of comments and instructions nothing.
void reportUnknown(AxEnvObject const& object, AxEnvObject::Attribute const& attribute);
void reportUnknown(AxEnvValue const& node);
/// An element that holds what the text says; null, and a report, when it is no XML.
AxEnvObjectPtr parsed(AxString const& text);
/// What the element of a value says besides it: the element without the value. Null when that is nothing. What is told
/// of it is told if `reports`.
AxEnvObjectPtr restOf(AxEnvObject const& object, AxReaderWriter const* value, bool reports);
/// Gives `element` what the rest of it says. The rest of a part that is gone goes with it.
void addRest(AxEnvObject& element, AxEnvObject const& rest);
} // namespace AxXmlFragment
