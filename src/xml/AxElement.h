#pragma once

#include "AxDiagnostic.h"
#include "AxEnvironment.h"

#include <string>

/// Elements by their tags, and findings at their places.
namespace AxElement
{
/// Calls `visit` with each child of `parent` that has the tag.
template <class Visit>
void forEach(AxEnvValuePtr const& parent, char const* tag, Visit const& visit)
{
    AxEnvListPtr const list = parent ? parent->castToList() : AxEnvListPtr();
    for (std::size_t i = 0; list && i < list->count(); ++i)
    {
        AxEnvObjectPtr const child = list->children()[i]->castToObject();
        if (child && child->type() == tag)
        {
            visit(child);
        }
    }
}

/// The first child with the tag; null when there is none.
AxEnvObjectPtr first(AxEnvValuePtr const& parent, char const* tag);
/// The same, and a report of each further one.
AxEnvObjectPtr single(AxEnvValuePtr const& parent, char const* tag);
/// The text of an attribute, empty when it is absent.
AxString attribute(AxEnvValuePtr const& element, char const* name);

void report(AxEnvValue const& place, AxSeverity severity, char const* code, std::string text);
} // namespace AxElement
