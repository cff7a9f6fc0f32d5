#include "AxObjectElement.h"

#include "AxCharacters.h"
#include "AxElement.h"
#include "AxSystemElement.h"
#include "AxTreeCells.h"

#include <algorithm>
#include <array>
#include <boost/make_shared.hpp>
#include <utility>
#include <vector>

namespace
{
/// The elements that a record, its variables and types are made of, if they are the first of their tag.
constexpr std::array theParts{AxSystemElement::theVariablesTag, AxObjectElement::theTypeTag,
                              AxObjectElement::theMatchTypeTag, AxObjectElement::thePlatformTag};

bool isFurtherTypes(AxEnvObject const& child)
{
    return child.type() == AxObjectElement::theTypesTag && child.name() == AxObjectElement::theFurtherTypes;
}
/// The type that an element gives; null when it gives none or, with a report if `reports`, one that cannot be read.
AxObjectType typeOf(AxEnvObjectPtr const& element, bool reports)
{
    AxObjectType type;
    AxString const text = AxElement::attribute(element, "value");
    bool const isEmpty = text.string().find_first_not_of(" \t\r\n") == std::string::npos;
    if (!isEmpty && !AxObjectType::fromString(text.string(), type) && reports)
    {
        AxElement::report(*element, AxSeverity::Error, "wrong-kind",
                          "expected 7 or 8 whole numbers for an object type, found \"" + text.string() + '"');
    }
    return type;
}

bool hasUnreadableValue(AxEnvObject const& element)
{
    AxObjectType type;
    AxString const* const value = element.attribute("value");
    return value && !axIsBlank(value->string()) && !AxObjectType::fromString(value->string(), type);
}

/// What an element of types or variables says that nobody knows; null when that is nothing.
AxEnvObjectPtr restOf(AxEnvObject const& part, bool reports)
{
    return part.type() == AxSystemElement::theVariablesTag  ? AxSystemElement::restOfVariables(part, reports)
           : part.type() == AxObjectElement::thePlatformTag ? AxEnvObjectPtr()
                                                            : AxXmlFragment::restOf(part, nullptr, reports);
}

/// Whether a record that was read from the element writes nothing in its place: it holds nothing, or no type that can
/// be read.
bool isLeftOut(AxEnvObject const& part)
{
    AxString const* const value = part.attribute("value");
    AxObjectType type;
    return hasUnreadableValue(part) || (part.count() == 0 && !(part.type() == AxObjectElement::thePlatformTag) &&
                                        (!value || !AxObjectType::fromString(value->string(), type) || type.isNull()));
}

/// Whether the element in what was kept is the rest of one that is written.
bool isRest(AxEnvObject const& child)
{
    bool const isPart =
        std::any_of(theParts.begin(), theParts.end(), [&child](char const* tag) { return child.type() == tag; });
    bool hasValue = child.attribute("value") != nullptr;
    for (AxEnvValuePtr const& node : child.children())
    {
        AxEnvObjectPtr const object = node->castToObject();
        hasValue = hasValue || (object && object->type() == "variable" && object->attribute("value"));
    }
    return isPart && !hasValue && !(child.type() == AxObjectElement::thePlatformTag);
}
} // namespace

AxEnvObjectList AxObjectElement::allOf(AxEnvironmentPtr const& env)
{
    AxEnvObjectList objects;
    if (env)
    {
        env->getObjectsByType(theTag, objects);
    }
    return objects;
}

AxObjectType AxObjectElement::objectTypeOf(AxEnvValuePtr const& element, bool reports)
{
    return typeOf(reports ? AxElement::single(element, theTypeTag) : AxElement::first(element, theTypeTag), reports);
}

std::vector<AxObjectType> AxObjectElement::matchTypesOf(AxEnvValuePtr const& element, bool reports)
{
    std::vector<AxObjectType> types;
    auto const add = [&](AxEnvObjectPtr const& child)
    {
        AxObjectType const type = typeOf(child, reports);
        if (!type.isNull())
        {
            types.push_back(type);
        }
    };
    add(reports ? AxElement::single(element, theMatchTypeTag) : AxElement::first(element, theMatchTypeTag));
    AxElement::forEach(element, theTypesTag,
                       [&](AxEnvObjectPtr const& group)
                       {
                           if (group->name() == theFurtherTypes)
                           {
                               AxElement::forEach(group, theTypeTag, add);
                           }
                       });
    return types;
}

bool AxObjectElement::hasUnreadableObjectType(AxEnvValuePtr const& element)
{
    AxEnvObjectPtr const given = AxElement::first(element, theTypeTag);
    return given && hasUnreadableValue(*given);
}

bool AxObjectElement::hasUnreadableType(AxEnvValuePtr const& element)
{
    bool isOne = false;
    auto const look = [&isOne](AxEnvObjectPtr const& child) { isOne = isOne || hasUnreadableValue(*child); };
    AxElement::forEach(element, theTypeTag, look);
    AxElement::forEach(element, theMatchTypeTag, look);
    AxElement::forEach(element, theTypesTag,
                       [&look](AxEnvObjectPtr const& group) { AxElement::forEach(group, theTypeTag, look); });
    return isOne;
}

void AxObjectElement::reportRests(AxEnvValuePtr const& element)
{
    for (char const* const tag : theParts)
    {
        if (AxEnvObjectPtr const part = AxElement::first(element, tag))
        {
            restOf(*part, true);
        }
    }
}

AxEnvObjectPtr AxObjectElement::othersOf(AxEnvValuePtr const& element)
{
    AxEnvObjectPtr const object = element ? element->castToObject() : AxEnvObjectPtr();
    if (!object)
    {
        return {};
    }
    auto const others = boost::make_shared<AxEnvObject>(theTag);
    for (AxEnvObject::Attribute const& attribute : object->attributes())
    {
        others->setAttribute(attribute.name, attribute.value->value());
    }
    AxEnvObjectPtr const platform = AxElement::first(element, thePlatformTag);
    if (object->hasName() && platform && platform->hasName() && !(platform->name() == object->name()))
    {
        others->setName(object->name());
    }
    std::array<bool, theParts.size()> seen{};
    for (AxEnvValuePtr const& node : object->children())
    {
        AxEnvObjectPtr const child = node->castToObject();
        auto const part = child ? std::find_if(theParts.begin(), theParts.end(),
                                               [&child](char const* tag) { return child->type() == tag; })
                                : theParts.end();
        auto const isTaken = [&]
        { return std::exchange(seen[static_cast<std::size_t>(part - theParts.begin())], true); };
        bool const isPart =
            child && (child->type() == AxSystemElement::theTag || (part != theParts.end() && !isTaken()));
        if (!isPart)
        {
            others->add(AxXmlFragment::copyOf(*node));
        }
        else if (part != theParts.end())
        {
            others->add(isLeftOut(*child) ? AxXmlFragment::copyOf(*child) : restOf(*child, false));
        }
    }
    return isEmpty(*others) ? AxEnvObjectPtr() : others;
}

void AxObjectElement::removeFurtherTypes(AxEnvObject& others)
{
    std::vector<AxEnvValuePtr> const children = others.children();
    for (AxEnvValuePtr const& node : children)
    {
        AxEnvObjectPtr const child = node->castToObject();
        if (child && isFurtherTypes(*child))
        {
            others.remove(node);
        }
    }
}

bool AxObjectElement::isEmpty(AxEnvObject const& others)
{
    return others.count() == 0 && others.attributes().empty() && !others.hasName();
}

bool AxObjectElement::isOthersItem(std::string const& item)
{
    std::string beginning = "(";
    beginning.append(AxTreeCells::theXmlHead).append(" \"<").append(theTag);
    return item.starts_with(beginning);
}

void AxObjectElement::addOthers(AxEnvObject& element, AxEnvObject& others)
{
    if (others.hasName())
    {
        element.setName(others.name());
    }
    for (AxEnvObject::Attribute const& attribute : others.attributes())
    {
        element.setAttribute(attribute.name, attribute.value->value());
    }
    std::vector<AxEnvValuePtr> const children = others.children();
    for (AxEnvValuePtr const& node : children)
    {
        AxEnvObjectPtr const child = node->castToObject();
        AxEnvObjectPtr const whole = child && isRest(*child)
                                         ? AxElement::first(element.shared_from_this(), child->type().c_str())
                                         : AxEnvObjectPtr();
        if (whole)
        {
            AxXmlFragment::addRest(*whole, *child);
            continue;
        }
        auto const platform = std::find_if(element.children().begin(), element.children().end(),
                                           [](AxEnvValuePtr const& one)
                                           {
                                               AxEnvObjectPtr const object = one->castToObject();
                                               return object && object->type() == thePlatformTag;
                                           });
        bool const isInFront = child && isFurtherTypes(*child);
        element.insert(isInFront ? static_cast<std::size_t>(platform - element.children().begin()) : element.count(),
                       node);
    }
}
