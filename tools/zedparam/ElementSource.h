#pragma once

#include <string_view>
#include <vector>

#include "AxEnvironment.h"
#include "Source.h"

/// Where something stands in the object element of an entity file, as Source tells it of parameter text. Each search
/// answers null when nothing is found.
class ElementSource
{
public:
    explicit ElementSource(AxEnvValuePtr const& element) : myElement(element->castToObject()) {}

    AxEnvValue const* value(std::vector<SourceStep> const& path) const;
    /// The first attribute that is `$variable` or holds `$(variable)`.
    AxEnvValue const* reference(std::string_view variable) const;

private:
    AxEnvObjectPtr myElement;
};
