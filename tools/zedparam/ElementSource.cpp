#include "ElementSource.h"

#include <span>
#include <string>

#include "AxReaderWriter.h"

namespace
{
bool matches(SourceStep const& step, AxString const& name)
{
    return step.keyword.isNull() || step.keyword.string() == name || step.rw->hasAlias(AxSymbolString(name));
}

AxEnvObject const* objectIn(AxEnvValuePtr const& node)
{
    return node->isObject() ? static_cast<AxEnvObject const*>(node.get()) : nullptr;
}

AxEnvValue const* valueBelow(AxEnvObject const& object, std::span<SourceStep const> path)
{
    if (path.size() == 1)
    {
        for (AxEnvObject::Attribute const& attribute : object.attributes())
        {
            if (matches(path.front(), attribute.name))
            {
                return attribute.value.get();
            }
        }
    }
    int occurrence = 0;
    for (AxEnvValuePtr const& node : object.children())
    {
        AxEnvObject const* const child = objectIn(node);
        AxEnvValue const* found = nullptr;
        if (child != nullptr && matches(path.front(), elementName(*child)))
        {
            if (path.front().occurrence != SourceStep::theLast && occurrence++ != path.front().occurrence)
            {
                continue;
            }
            found = path.size() == 1 ? child : valueBelow(*child, path.subspan(1));
        }
        else if (child != nullptr && child->type() == "variableBindings")
        {
            found = valueBelow(*child, path);
        }
        if (found != nullptr)
        {
            return found;
        }
    }
    return nullptr;
}

/// The value of the first attribute that `accept` takes.
template <class Accept>
AxEnvValue const* attributeBelow(AxEnvObject const& object, Accept const& accept)
{
    for (AxEnvObject::Attribute const& attribute : object.attributes())
    {
        if (accept(attribute.name.string(), attribute.value->value().string()))
        {
            return attribute.value.get();
        }
    }
    for (AxEnvValuePtr const& node : object.children())
    {
        AxEnvObject const* const child = objectIn(node);
        AxEnvValue const* const found = child != nullptr ? attributeBelow(*child, accept) : nullptr;
        if (found != nullptr)
        {
            return found;
        }
    }
    return nullptr;
}
} // namespace

AxString const& elementName(AxEnvObject const& element)
{
    AxString const* const type = element.type() == "readerWriter" ? element.attribute("type") : nullptr;
    return element.hasName() ? element.name() : type != nullptr ? *type : element.type();
}

AxEnvValue const* ElementSource::value(std::span<SourceStep const> path) const
{
    if (path.empty() || myElement == nullptr)
    {
        return nullptr;
    }
    // Systems are elements beside that of the record.
    bool const isInSystem = path.size() > 1 && path.front().keyword == "systems";
    for (AxEnvValuePtr const& node : myElement->children())
    {
        AxEnvObject const* const child = objectIn(node);
        std::span<SourceStep const> const rest = path;
        AxEnvValue const* found = nullptr;
        if (child != nullptr && isInSystem && child->type() == "componentSystem" &&
            matches(path[1], elementName(*child)))
        {
            found = path.size() == 2 ? child : valueBelow(*child, rest.subspan(2));
        }
        else if (child != nullptr && child->type() == "platform")
        {
            found = valueBelow(*child, rest);
        }
        if (found != nullptr)
        {
            return found;
        }
    }
    return nullptr;
}

AxEnvValue const* ElementSource::variable(std::string_view name) const
{
    if (myElement == nullptr)
    {
        return nullptr;
    }
    for (AxEnvValuePtr const& node : myElement->children())
    {
        AxEnvObject const* const set = objectIn(node);
        if (set == nullptr || set->type() != "variableBindings")
        {
            continue;
        }
        for (AxEnvValuePtr const& variable : set->children())
        {
            AxEnvObject const* const its = objectIn(variable);
            if (its != nullptr && its->name().string() == name)
            {
                return its;
            }
        }
    }
    return nullptr;
}

AxEnvValue const* ElementSource::reference(std::string_view variable) const
{
    std::string const whole = "$" + std::string(variable);
    std::string const embedded = "$(" + std::string(variable) + ")";
    return myElement == nullptr ? nullptr
                                : attributeBelow(*myElement, [&](std::string const&, std::string const& text)
                                                 { return text == whole || text.find(embedded) != std::string::npos; });
}

AxEnvValue const* ElementSource::attribute(std::string_view name, std::string_view value) const
{
    return myElement == nullptr ? nullptr
                                : attributeBelow(*myElement, [&](std::string const& key, std::string const& text)
                                                 { return key == name && text == value; });
}
