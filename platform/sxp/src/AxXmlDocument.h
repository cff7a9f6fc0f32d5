#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include <boost/shared_ptr.hpp>

#include "AxEnvironment.h"

/// An XML document as places in its text, for the plain ones: UTF-8 without declarations of types, processing
/// instructions and CDATA, text only in elements that hold nothing else. It was checked to its end, so that whoever has
/// one meets no fault any more. Everything else is left to the parser, which also says what is wrong with a text.
class AxXmlDocument
{
public:
    using Ptr = boost::shared_ptr<AxXmlDocument const>;

    enum class Kind : std::uint8_t
    {
        Element, ///< `begin` and `size` are those of the tag
        Text,
        Comment
    };

    /// Nodes stand in the order of the text; the first child of an element, if any, right behind it.
    struct Node
    {
        std::uint32_t begin;
        std::uint32_t size;
        std::uint32_t firstAttribute; ///< the attributes up to those of the next node
        std::uint32_t next;           ///< the first node behind all of this one's
        Kind kind;
        bool isCoded; ///< not what it says as it stands: references or line ends
    };

    struct Attribute
    {
        std::uint32_t name;
        std::uint32_t value;
        std::uint32_t valueSize;
        std::uint16_t nameSize;
        bool isCoded;
    };

    struct Place
    {
        std::uint32_t line;
        std::uint32_t column;
    };

    /// Takes the text over, unless that is not plain or not certainly well-formed: null, and `text` stays as it is.
    static Ptr scanned(std::string&& text);

    /// The tree of a document. Its nodes are made when they are looked for.
    static AxEnvironmentPtr environment(Ptr const& document);
    /// The element that an object is made of, as long as nobody looked for attributes or children of it.
    static Ptr const& sourceOf(AxEnvObject const& object, std::uint32_t& node);
    /// An attribute of an object, told without making its parts; false when it is absent.
    static bool attributeOf(AxEnvObject const& object, std::string_view name, AxString& text, Place& place);
    /// A node of its own, outside of the tree.
    static AxEnvValuePtr made(Ptr const& document, std::uint32_t node);
    /// Makes what the object consists of.
    static void expand(AxEnvObject& object, Ptr const& document, std::uint32_t node);

    Node const& node(std::uint32_t index) const { return myNodes[index]; }
    Attribute const* attributesBegin(std::uint32_t node) const
    {
        return myAttributes.data() + myNodes[node].firstAttribute;
    }
    Attribute const* attributesEnd(std::uint32_t node) const
    {
        return myAttributes.data() + myNodes[node + 1].firstAttribute;
    }
    /// The attribute "name"; null when there is none.
    Attribute const* nameOf(std::uint32_t node) const;

    std::string_view tag(std::uint32_t node) const { return textAt(myNodes[node].begin, myNodes[node].size); }
    std::string_view name(Attribute const& attribute) const { return textAt(attribute.name, attribute.nameSize); }
    /// As it stands; what it says, unless it is coded.
    std::string_view rawValue(Attribute const& attribute) const { return textAt(attribute.value, attribute.valueSize); }
    std::string value(Attribute const& attribute) const;
    std::string text(Node const& node) const;

    /// Line and column of a node or attribute, as the parser's tree has them.
    Place placeOf(Node const& node) const;
    Place placeOf(Attribute const& attribute) const { return placeAt(attribute.name); }

private:
    class Scanner;
    /// A line that was found while places were asked for.
    struct Line
    {
        std::uint32_t begin;
        std::uint32_t number;
    };

    AxXmlDocument() = default;
    AxXmlDocument(AxXmlDocument const&) = delete;
    AxXmlDocument& operator=(AxXmlDocument const&) = delete;

    std::string_view textAt(std::uint32_t begin, std::uint32_t size) const { return {myText.data() + begin, size}; }
    Place placeAt(std::uint32_t offset) const;
    std::string myText;
    std::vector<Node> myNodes; // one more at the end, where the attributes of the last end
    std::vector<Attribute> myAttributes;
    mutable std::vector<Line> myLines; // in the order of the text, some way apart
    mutable Line myLine{0, 0};         // that of the place asked for last
};
