#pragma once

#include <array>
#include <string_view>

#include "AxLimits.h"
#include "AxXmlDocument.h"

/// Takes a document apart in one pass. Whatever it does not know for certain to be well-formed makes it give up.
class AxXmlScanner
{
public:
    /// A zero byte stands behind the text.
    AxXmlScanner(std::string_view text, std::vector<AxXmlDocument::Node>& nodes,
                 std::vector<AxXmlDocument::Attribute>& attributes)
        : myBegin(text.data()), myEnd(myBegin + text.size()), myAt(myBegin), myNodes(nodes), myAttributes(attributes)
    {
    }

    bool scan();

private:
    /// Names of the attributes of one element, by their hashes. What an earlier element left is no longer valid.
    static constexpr std::size_t theNames = 1024;
    static constexpr std::size_t theMostAttributes = 700;

    bool declaration();
    bool startTag();
    bool endTag();
    bool comment();
    bool textOf(char const* begin);
    bool attribute(std::uint32_t first);
    bool attributeValue(AxXmlDocument::Attribute& attribute);
    bool isRepeated(std::uint32_t first, AxXmlDocument::Attribute const& attribute);
    bool character();
    bool reference();
    void addNode(AxXmlDocument::Kind kind, char const* begin, char const* end, bool isCoded);
    bool take(std::string_view word);
    std::uint32_t offset(char const* at) const { return static_cast<std::uint32_t>(at - myBegin); }

    char const* myBegin;
    char const* myEnd;
    char const* myAt;
    std::vector<AxXmlDocument::Node>& myNodes;
    std::vector<AxXmlDocument::Attribute>& myAttributes;
    std::array<std::uint32_t, axLimits.xmlDepth> myOpen;
    std::size_t myDepth = 0;
    bool myHasRoot = false;
    std::array<std::uint32_t, theNames> myNames{};
};
