#include "AxXmlDocument.h"

#include <algorithm>
#include <charconv>

#include <boost/make_shared.hpp>

#include "AxLimits.h"
#include "AxWindows1252.h"
#include "AxXmlScanner.h"

namespace
{
/// Bytes between the lines that are remembered.
constexpr std::uint32_t theLineDistance = 4096;

/// The character that a reference, from its "&" on, stands for; `at` goes on behind it.
void appendReference(std::string& out, std::string_view text, std::size_t& at)
{
    std::size_t const end = text.find(';', at);
    std::string_view const name = text.substr(at + 1, end - at - 1);
    at = end + 1;
    if (name.front() == '#')
    {
        bool const isHex = name[1] == 'x';
        std::uint32_t point = 0;
        std::from_chars(name.data() + (isHex ? 2 : 1), name.data() + name.size(), point, isHex ? 16 : 10);
        axAppendUtf8(out, point);
        return;
    }
    out += name == "lt" ? '<' : name == "gt" ? '>' : name == "amp" ? '&' : name == "quot" ? '"' : '\'';
}

/// Blanks of an attribute are spaces, whatever they stand as.
std::string decoded(std::string_view text, bool isAttribute)
{
    std::string out;
    out.reserve(text.size());
    for (std::size_t at = 0; at < text.size();)
    {
        char const byte = text[at];
        if (byte == '&')
        {
            appendReference(out, text, at);
            continue;
        }
        bool const isLineEnd = byte == '\r' || byte == '\n';
        at += byte == '\r' && text.substr(at + 1).starts_with('\n') ? 2 : 1;
        out += isLineEnd || byte == '\t' ? (isAttribute ? ' ' : isLineEnd ? '\n' : byte) : byte;
    }
    return out;
}
} // namespace

AxXmlDocument::Ptr AxXmlDocument::scanned(std::string&& text)
{
    if (text.size() > axLimits.fileSize)
    {
        return {};
    }
    // Allocated by itself: what looks at it need not know the counts.
    boost::shared_ptr<AxXmlDocument> document(new AxXmlDocument);
    document->myNodes.reserve(text.size() / 64 + 8);
    document->myAttributes.reserve(text.size() / 24 + 8);
    if (!AxXmlScanner(text, document->myNodes, document->myAttributes).scan())
    {
        return {};
    }
    document->myText = std::move(text);
    return document;
}

AxXmlDocument::Attribute const* AxXmlDocument::nameOf(std::uint32_t node) const
{
    Attribute const* const end = attributesEnd(node);
    Attribute const* const found =
        std::find_if(attributesBegin(node), end, [this](Attribute const& one) { return name(one) == "name"; });
    return found != end ? found : nullptr;
}

std::string AxXmlDocument::value(Attribute const& attribute) const
{
    std::string_view const raw = rawValue(attribute);
    return attribute.isCoded ? decoded(raw, true) : std::string(raw);
}

std::string AxXmlDocument::text(Node const& node) const
{
    std::string_view const raw = textAt(node.begin, node.size);
    return node.isCoded ? decoded(raw, false) : std::string(raw);
}

AxXmlDocument::Place AxXmlDocument::placeOf(Node const& node) const
{
    constexpr std::uint32_t before[] = {1, 0, 4}; // the "<" and "<!--"
    return placeAt(node.begin - before[static_cast<unsigned>(node.kind)]);
}

AxXmlDocument::Place AxXmlDocument::placeAt(std::uint32_t offset) const
{
    if (myLine.number == 0 || offset < myLine.begin)
    {
        auto const later = std::upper_bound(myLines.begin(), myLines.end(), offset,
                                            [](std::uint32_t at, Line const& line) { return at < line.begin; });
        myLine = later != myLines.begin() ? *(later - 1) : Line{myText.starts_with("\xEF\xBB\xBF") ? 3U : 0U, 1};
    }
    for (;;)
    {
        std::size_t const end = myText.find('\n', myLine.begin);
        if (end == std::string::npos || end >= offset)
        {
            return {myLine.number, offset - std::min(offset, myLine.begin) + 1};
        }
        myLine = {static_cast<std::uint32_t>(end) + 1, myLine.number + 1};
        if (myLine.begin > (myLines.empty() ? 0 : myLines.back().begin) + theLineDistance)
        {
            myLines.push_back(myLine);
        }
    }
}

AxEnvironmentPtr AxXmlDocument::environment(Ptr const& document)
{
    auto const environment = boost::make_shared<AxEnvironment>();
    auto const last = static_cast<std::uint32_t>(document->myNodes.size()) - 1;
    for (std::uint32_t node = 0; node < last; node = document->myNodes[node].next)
    {
        AxEnvValuePtr const object = made(document, node);
        if (document->myNodes[node].kind == Kind::Element)
        {
            environment->setRoot(object);
            continue;
        }
        (environment->root() ? environment->epilogue() : environment->prologue())->add(object);
    }
    return environment;
}

AxXmlDocument::Ptr const& AxXmlDocument::sourceOf(AxEnvObject const& object, std::uint32_t& node)
{
    node = object.mySourceNode;
    return object.mySource;
}

bool AxXmlDocument::attributeOf(AxEnvObject const& object, std::string_view name, AxString& text, Place& place)
{
    if (Ptr const& document = object.mySource)
    {
        Attribute const* const end = document->attributesEnd(object.mySourceNode);
        Attribute const* const found = std::find_if(document->attributesBegin(object.mySourceNode), end,
                                                    [&](Attribute const& one) { return document->name(one) == name; });
        if (found != end)
        {
            text = AxString(document->value(*found));
            place = document->placeOf(*found);
        }
        return found != end;
    }
    AxEnvValuePtr const value = object.attributeNode(AxString(name));
    if (value)
    {
        text = value->value();
        place = value->line() != 0 ? Place{value->line(), value->column()} : Place{object.line(), object.column()};
    }
    return value != nullptr;
}

AxEnvValuePtr AxXmlDocument::made(Ptr const& document, std::uint32_t index)
{
    Node const& node = document->myNodes[index];
    Place const place = document->placeOf(node);
    AxEnvValuePtr value;
    if (node.kind == Kind::Text)
    {
        value = boost::make_shared<AxEnvValue>(AxString(document->text(node)));
    }
    else if (node.kind == Kind::Comment)
    {
        auto const comment = boost::make_shared<AxEnvObject>(AxEnvObject::commentType());
        comment->add(boost::make_shared<AxEnvValue>(AxString(document->text(node))));
        value = comment;
    }
    else
    {
        auto const object = boost::make_shared<AxEnvObject>(AxString(document->tag(index)));
        if (Attribute const* const name = document->nameOf(index))
        {
            object->setName(AxString(document->value(*name)));
        }
        object->mySource = document;
        object->mySourceNode = index;
        value = object;
    }
    value->setPlace(place.line, place.column);
    return value;
}

void AxXmlDocument::expand(AxEnvObject& object, Ptr const& document, std::uint32_t index)
{
    Attribute const* const end = document->attributesEnd(index);
    for (Attribute const* attribute = document->attributesBegin(index); attribute != end; ++attribute)
    {
        if (document->name(*attribute) == "name")
        {
            continue; // it may have another one by now
        }
        Place const place = document->placeOf(*attribute);
        object.appendAttribute(AxString(document->name(*attribute)), AxString(document->value(*attribute)))
            ->setPlace(place.line, place.column);
    }
    std::uint32_t const next = document->myNodes[index].next;
    for (std::uint32_t node = index + 1; node < next; node = document->myNodes[node].next)
    {
        object.add(made(document, node));
    }
}
