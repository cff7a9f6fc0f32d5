#include "AxElement.h"

AxEnvObjectPtr AxElement::first(AxEnvValuePtr const& parent, char const* tag)
{
    AxEnvObjectPtr found;
    forEach(parent, tag, [&found](AxEnvObjectPtr const& child) { found = found ? found : child; });
    return found;
}

AxEnvObjectPtr AxElement::single(AxEnvValuePtr const& parent, char const* tag)
{
    AxEnvObjectPtr found;
    forEach(parent, tag,
            [&](AxEnvObjectPtr const& child)
            {
                if (found)
                {
                    report(*child, AxSeverity::Warning, "repeated-element",
                           "element \"" + std::string(tag) + "\" stands here again; the first one counts");
                    return;
                }
                found = child;
            });
    return found;
}

AxString AxElement::attribute(AxEnvValuePtr const& element, char const* name)
{
    AxEnvObjectPtr const object = element ? element->castToObject() : AxEnvObjectPtr();
    AxString const* const text = object ? object->attribute(name) : nullptr;
    return text ? *text : AxString();
}

void AxElement::report(AxEnvValue const& place, AxSeverity severity, char const* code, std::string text)
{
    AxDiagnostic finding;
    finding.severity = severity;
    finding.code = code;
    finding.line = place.line();
    finding.column = place.column();
    finding.text = std::move(text);
    AxDiagnostics::report(std::move(finding));
}
