#pragma once

#include <functional>
#include <span>
#include <string_view>
#include <vector>

#include "AxEnvironment.h"
#include "NameIndex.h"
#include "Source.h"

/// What an element is called where it is read: its name, else its type, else its tag.
AxString const& elementName(AxEnvObject const& element);

/// Where something stands in the object element of an entity file, as Source tells it of parameter text. Each search
/// answers null when nothing is found.
class ElementSource
{
public:
    /// Of nothing at all when it is null.
    explicit ElementSource(AxEnvValuePtr const& element)
        : myElement(element != nullptr ? element->castToObject() : AxEnvObjectPtr())
    {
    }

    AxEnvValue const* value(std::span<SourceStep const> path) const;
    /// What binds the variable for all of the record.
    AxEnvValue const* variable(std::string_view name) const;
    /// The first attribute that is `$variable` or holds `$(variable)`.
    AxEnvValue const* reference(std::string_view variable) const;
    /// Shows `visit` every attribute, those of an element before those in it.
    void forEachAttribute(std::function<void(std::string_view name, AxEnvValue const& attribute)> const& visit) const;
    /// Shows `visit` each system and component that has the name of one in front of it in its list.
    void forEachRepeatedName(std::function<void(AxEnvObject const& element)> const& visit) const;
    /// The element as the parameter text that says the same, with the places of the elements that it stands for.
    Source text() const;

private:
    std::vector<AxEnvObject const*> const& children(AxEnvObject const& object, std::string_view name) const;
    AxEnvValue const* valueBelow(AxEnvObject const& object, std::span<SourceStep const> path) const;

    AxEnvObjectPtr myElement;
    mutable NameIndex<AxEnvObject const> myByName; // the children of long elements
};
