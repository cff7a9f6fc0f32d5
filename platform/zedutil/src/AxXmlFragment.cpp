#include "AxEnvXMLReader.h"
#include "AxEnvXMLWriter.h"
#include "AxTreeCells.h"

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
} // namespace

AxEnvValuePtr AxXmlFragment::copyOf(AxEnvValue const& node)
{
    if (!node.isObject())
    {
        auto const text = boost::make_shared<AxEnvValue>(node.value());
        text->setPlace(node.line(), node.column());
        return text;
    }
    auto const& object = static_cast<AxEnvObject const&>(node);
    auto const copy = boost::make_shared<AxEnvObject>(object.type());
    copy->setPlace(node.line(), node.column());
    if (object.hasName())
    {
        copy->setName(object.name());
    }
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

bool AxXmlFragment::addTo(AxString const& text, AxEnvObject& node)
{
    std::string const& piece = text.string();
    AxEnvironmentPtr const read =
        AxEnvXMLReader::readText(isAttribute(piece) ? "<x " + piece + "/>" : "<x>" + piece + "</x>", AxFilename());
    AxEnvObjectPtr const root = read && read->root() ? read->root()->castToObject() : AxEnvObjectPtr();
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
