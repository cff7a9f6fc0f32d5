#include "AxCharacters.h"
#include "AxDiagnostic.h"
#include "AxEnvXMLReader.h"
#include "AxEnvXMLWriter.h"
#include "AxObjectType.h"
#include "AxTreeCells.h"

#include <algorithm>
#include <boost/make_shared.hpp>

namespace
{
constexpr char const* theWrapper = "x";

/// The document with `root`, from behind `open` up to the last `close`.
std::string between(AxEnvObjectPtr const& root, std::string const& open, std::string const& close)
{
    auto const env = boost::make_shared<AxEnvironment>();
    env->setRoot(root);
    AxEnvXMLWriter writer;
    writer.setIndentation(0);
    std::string text;
    writer.writeText(env, text);
    std::size_t const first = text.find(open);
    std::size_t const last = text.rfind(close);
    return first == std::string::npos || last == std::string::npos || last < first + open.size()
               ? std::string()
               : text.substr(first + open.size(), last - first - open.size());
}

bool isAttribute(std::string const& text)
{
    return !text.empty() && text.find('<') == std::string::npos && text.find("=\"") != std::string::npos &&
           text.back() == '"';
}

void report(AxEnvValue const& place, char const* code, std::string text)
{
    AxDiagnostic finding;
    finding.severity = AxSeverity::Warning;
    finding.code = code;
    finding.line = place.line();
    finding.column = place.column();
    finding.text = std::move(text);
    AxDiagnostics::report(std::move(finding));
}

/// An element without content.
AxEnvObjectPtr shellOf(AxEnvObject const& object)
{
    auto const shell = boost::make_shared<AxEnvObject>(object.type());
    shell->setPlace(object.line(), object.column());
    if (object.hasName())
    {
        shell->setName(object.name());
    }
    return shell;
}

/// The form in which a type is written.
AxString typeText(AxString const& text)
{
    AxObjectType type;
    return AxObjectType::fromString(text.string(), type) ? type.string() : text;
}

bool isSamePart(AxEnvObject const& one, AxEnvObject const& other)
{
    AxString const* const mine = one.attribute("value");
    AxString const* const theirs = other.attribute("value");
    return one.type() == other.type() && one.name() == other.name() &&
           (!theirs || (mine && typeText(*mine) == typeText(*theirs)));
}

/// The part of `element` that `rest` is the rest of.
AxEnvObjectPtr partOf(AxEnvObject const& element, AxEnvObject const& rest)
{
    for (AxEnvValuePtr const& child : element.children())
    {
        AxEnvObjectPtr const part = child->castToObject();
        if (part && isSamePart(*part, rest))
        {
            return part;
        }
    }
    return {};
}
} // namespace

void AxXmlFragment::reportUnknown(AxEnvObject const& object, AxEnvObject::Attribute const& attribute)
{
    bool const isPlaced = attribute.value->line() != 0;
    report(isPlaced ? *attribute.value : static_cast<AxEnvValue const&>(object), "unknown-attribute",
           "unknown attribute \"" + attribute.name.string() + "\" in \"" +
               (object.name().isNull() ? object.type() : object.name()).string() + '"');
}

void AxXmlFragment::reportUnknown(AxEnvValue const& node)
{
    if (!node.isObject())
    {
        std::string const& text = node.value().string();
        std::size_t const first = text.find_first_not_of(" \t\r\n");
        std::size_t const last = text.find_last_not_of(" \t\r\n");
        report(node, "unexpected-text", "unexpected text \"" + text.substr(first, last - first + 1) + '"');
    }
    else if (auto const& object = static_cast<AxEnvObject const&>(node); !object.isReserved())
    {
        report(node, "unknown-element", "unknown element \"" + object.type().string() + '"');
    }
}

AxEnvValuePtr AxXmlFragment::copyOf(AxEnvValue const& node)
{
    if (!node.isObject())
    {
        auto const text = boost::make_shared<AxEnvValue>(node.value());
        text->setPlace(node.line(), node.column());
        return text;
    }
    auto const& object = static_cast<AxEnvObject const&>(node);
    AxEnvObjectPtr const copy = shellOf(object);
    for (AxEnvObject::Attribute const& attribute : object.attributes())
    {
        AxEnvValuePtr const value = copy->setAttribute(attribute.name, attribute.value->value());
        value->setPlace(attribute.value->line(), attribute.value->column());
    }
    for (AxEnvValuePtr const& child : object.children())
    {
        copy->add(copyOf(*child));
    }
    return copy;
}

std::string AxXmlFragment::ofNode(AxEnvValue const& node)
{
    auto const root = boost::make_shared<AxEnvObject>(AxString(theWrapper));
    root->add(copyOf(node));
    std::string text = between(root, "<x>", "</x>");
    if (node.isObject())
    {
        std::size_t const first = text.find_first_not_of('\n');
        return first == std::string::npos ? text : text.substr(first, text.find_last_not_of('\n') - first + 1);
    }
    std::string escaped; // without a quote it cannot be taken for an attribute
    for (char const byte : text)
    {
        byte == '"' ? escaped += "&quot;" : escaped += byte;
    }
    return escaped;
}

std::string AxXmlFragment::ofAttribute(AxEnvObject::Attribute const& attribute)
{
    auto const root = boost::make_shared<AxEnvObject>(AxString(theWrapper));
    root->setAttribute(attribute.name, attribute.value->value());
    return between(root, "<x ", "/>");
}

AxEnvObjectPtr AxXmlFragment::parsed(AxString const& text)
{
    std::string const& piece = text.string();
    AxEnvironmentPtr const read =
        AxEnvXMLReader::readText(isAttribute(piece) ? "<x " + piece + "/>" : "<x>" + piece + "</x>", AxFilename());
    return read && read->root() ? read->root()->castToObject() : AxEnvObjectPtr();
}

bool AxXmlFragment::addTo(AxString const& text, AxEnvObject& node)
{
    AxEnvObjectPtr const root = parsed(text);
    if (!root)
    {
        return false;
    }
    for (AxEnvObject::Attribute const& attribute : root->attributes())
    {
        node.setAttribute(attribute.name, attribute.value->value());
    }
    while (root->count() != 0)
    {
        node.add(root->children().front());
    }
    return true;
}

AxEnvObjectPtr AxXmlFragment::restOf(AxEnvObject const& object, AxReaderWriter const* value, bool reports)
{
    AxEnvObjectPtr const rest = shellOf(object);
    for (AxEnvObject::Attribute const& attribute : object.attributes())
    {
        if (!AxTreeCells::isOfForm(object, attribute.name, value))
        {
            reports ? reportUnknown(object, attribute) : void();
            rest->setAttribute(attribute.name, attribute.value->value());
        }
    }
    for (AxEnvValuePtr const& node : object.children())
    {
        AxEnvObjectPtr const child = node->castToObject();
        if ((!child && axIsBlank(node->value().string())) ||
            (child && child->type() == AxTreeCells::theTextTag && AxTreeCells::hasItem(*child, object, value)))
        {
            continue;
        }
        if (!child || !AxTreeCells::isPartOfValue(object.type().string(), child->type().string()))
        {
            reports ? reportUnknown(*node) : void();
            rest->add(copyOf(*node));
        }
        else if (AxEnvObjectPtr const part = restOf(*child, nullptr, reports))
        {
            if (AxString const* const text = child->attribute("value"); text && child->type() == "objectType")
            {
                part->setAttribute("value", *text); // tells it from the others
            }
            rest->add(part);
        }
    }
    return rest->attributes().empty() && rest->count() == 0 ? AxEnvObjectPtr() : rest;
}

void AxXmlFragment::addRest(AxEnvObject& element, AxEnvObject const& rest)
{
    for (AxEnvObject::Attribute const& attribute : rest.attributes())
    {
        if (!element.attribute(attribute.name))
        {
            element.setAttribute(attribute.name, attribute.value->value());
        }
    }
    for (AxEnvValuePtr const& node : rest.children())
    {
        AxEnvObjectPtr const child = node->castToObject();
        bool const isPart = child && AxTreeCells::isPartOfValue(rest.type().string(), child->type().string());
        bool const isVariable = child && child->type() == "variable" && !child->attribute("value");
        if (AxEnvObjectPtr const part = isPart || isVariable ? partOf(element, *child) : AxEnvObjectPtr())
        {
            addRest(*part, *child);
        }
        else if (!isPart)
        {
            element.add(copyOf(*node));
        }
    }
}
