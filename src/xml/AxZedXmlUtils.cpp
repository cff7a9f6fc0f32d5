#include "AxZedXmlUtils.h"

#include "AxElement.h"
#include "AxEnvXMLReader.h"
#include "AxEnvXMLWriter.h"
#include "AxRwObjectType.h"
#include "AxRwVariableBindings.h"
#include "AxSystemElement.h"

#include <algorithm>

namespace
{
constexpr char const* theObjectTag = "simObject";
constexpr char const* theTypeTag = "objectType";
constexpr char const* theMatchTypeTag = "matchType";
constexpr char const* theTypesTag = "objectTypes";
constexpr char const* theGuiTag = "guiInformation";
constexpr char const* theFurtherTypes = "additional-match-types";

/// The type that an element gives; null when it gives none or, with a report if `reports`, one that cannot be read.
AxObjectType typeOf(AxEnvObjectPtr const& element, bool reports)
{
    AxObjectType type;
    AxString const text = AxElement::attribute(element, "value");
    bool const isEmpty = text.string().find_first_not_of(" \t\r\n") == std::string::npos;
    if (!isEmpty && !AxObjectType::fromString(text.string(), type) && reports)
    {
        AxElement::report(*element, AxSeverity::Error, "wrong-kind",
                          "expected 7 or 8 numbers for an object type, found \"" + text.string() + '"');
    }
    return type;
}

AxObjectType objectTypeOf(AxEnvValuePtr const& element, bool reports)
{
    return typeOf(reports ? AxElement::single(element, theTypeTag) : AxElement::first(element, theTypeTag), reports);
}

std::vector<AxObjectType> matchTypesOf(AxEnvValuePtr const& element, bool reports)
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

template <class Fits>
AxEnvValuePtr lastObject(AxEnvironmentPtr const& env, Fits const& fits)
{
    std::list<AxEnvValuePtr> elements;
    AxZedXmlUtils::getObjectElements(env, elements);
    for (auto element = elements.rbegin(); element != elements.rend(); ++element)
    {
        if (fits(*element))
        {
            return *element;
        }
    }
    return {};
}

bool isReference(std::string const& text)
{
    return text.starts_with('$') && !text.starts_with("$(") && !text.starts_with("$$(");
}
} // namespace

AxEnvironmentPtr AxZedXmlUtils::CreateZedXmlEnvironment(AxFilename const& file, bool warn)
{
    return AxEnvXMLReader::readFile(file, nullptr, warn);
}

bool AxZedXmlUtils::writeEnvironment(AxEnvironmentPtr const& env, AxFilename const& file)
{
    return env && AxEnvXMLWriter().writeFile(env, file);
}

void AxZedXmlUtils::getObjectElements(AxEnvironmentPtr const& env, std::list<AxEnvValuePtr>& elements)
{
    AxEnvObjectList objects;
    if (env)
    {
        env->getObjectsByType(theObjectTag, objects);
    }
    elements.insert(elements.end(), objects.begin(), objects.end());
}

AxEnvValuePtr AxZedXmlUtils::findObjectElementByObjectType(AxEnvironmentPtr const& env, AxObjectType const& type)
{
    return lastObject(env, [&type](AxEnvValuePtr const& element)
                      { return !type.isNull() && objectTypeOf(element, false) == type; });
}

AxEnvValuePtr AxZedXmlUtils::findObjectElementByMatchType(AxEnvironmentPtr const& env, AxObjectType const& type)
{
    return lastObject(env,
                      [&type](AxEnvValuePtr const& element)
                      {
                          std::vector<AxObjectType> const types = matchTypesOf(element, false);
                          return std::find(types.begin(), types.end(), type) != types.end();
                      });
}

AxObjectType AxZedXmlUtils::getObjectType(AxEnvironmentPtr const&, AxEnvValuePtr const& element)
{
    return objectTypeOf(element, true);
}

void AxZedXmlUtils::getMatchTypes(AxEnvironmentPtr const&, AxEnvValuePtr const& element,
                                  std::vector<AxObjectType>& types)
{
    std::vector<AxObjectType> const found = matchTypesOf(element, true);
    types.insert(types.end(), found.begin(), found.end());
}

AxEnvValuePtr AxZedXmlUtils::getPlatform(AxEnvironmentPtr const&, AxEnvValuePtr const& element)
{
    return AxElement::first(element, "platform");
}

AxEnvValuePtr AxZedXmlUtils::getGuiInformation(AxEnvironmentPtr const&, AxEnvValuePtr const& element)
{
    return AxElement::first(element, theGuiTag);
}

void AxZedXmlUtils::getComponentSystems(AxEnvironmentPtr const&, AxEnvValuePtr const& element,
                                        std::list<AxEnvValuePtr>& systems)
{
    AxElement::forEach(element, AxSystemElement::theTag,
                       [&systems](AxEnvObjectPtr const& system) { systems.push_back(system); });
}

AxString AxZedXmlUtils::getSystemName(AxEnvironmentPtr const&, AxEnvValuePtr const& system)
{
    return AxElement::attribute(AxElement::first(system, AxSystemElement::theNameTag), "value");
}

bool AxZedXmlUtils::readModelSetEntry(AxEnvironmentPtr const& env, AxEnvValuePtr const& element, AxReaderWriter& entry)
{
    AxEnvObjectPtr const gui = AxElement::single(element, theGuiTag);
    if (!gui)
    {
        return false;
    }
    entry.getSelf(env, gui, AxReaderWriter::nullFilenames(), AxReaderWriter::nullVariableReference());
    AxObjectType const type = objectTypeOf(element, true);
    AxReaderWriterRegistry* const members = entry.registryIfAny();
    auto* const member = dynamic_cast<AxRwObjectType*>(members ? members->find("object-type") : nullptr);
    if (member && !type.isNull())
    {
        *member = type;
        member->setValueSpecified(true, false);
    }
    return true;
}

bool AxZedXmlUtils::writeModelSetEntry(AxEnvironmentPtr const& env, AxEnvValuePtr const& element,
                                       AxReaderWriter const& entry)
{
    AxEnvListPtr const object = element ? element->castToList() : AxEnvListPtr();
    if (!env || !object)
    {
        return false;
    }
    while (AxEnvObjectPtr const old = AxElement::first(element, theGuiTag))
    {
        object->remove(old);
    }
    std::size_t const before = object->count();
    entry.putSelf(env, element);
    AxEnvObjectPtr const gui = object->count() > before ? object->children().back()->castToObject() : AxEnvObjectPtr();
    if (!gui)
    {
        return false;
    }
    gui->setType(theGuiTag);
    gui->setName("gui");
    // The type is that of the object.
    AxEnvObjectPtr const type = env->getObject("object-type", theTypeTag, gui);
    if (type)
    {
        gui->remove(type);
    }
    if (type && !AxElement::first(element, theTypeTag))
    {
        type->setName(theTypeTag);
        object->insert(0, type);
    }
    return true;
}

void AxZedXmlUtils::readVariableBindings(AxEnvironmentPtr const& env, AxEnvValuePtr const& element,
                                         AxRwVariableBindings& variables)
{
    if (AxEnvObjectPtr const set = AxSystemElement::variableSetOf(element))
    {
        AxRwVariableBindings read;
        read.getSelf(env, set, AxReaderWriter::nullFilenames(), AxReaderWriter::nullVariableReference());
        variables.addAllFrom(read);
    }
}

void AxZedXmlUtils::writeVariableBindings(AxEnvironmentPtr const& env, AxEnvValuePtr const& element,
                                          AxRwVariableBindings const& variables)
{
    if (!env || !element || variables.empty())
    {
        return;
    }
    AxEnvObjectPtr const set = env->addObject("variable-bindings", AxSystemElement::theVariablesTag, element);
    for (AxSymbolString const name : set ? variables.names() : std::vector<AxSymbolString>())
    {
        AxSystemElement::addVariable(env, set, name.string(), variables.find(name)->get());
    }
}

AxString AxZedXmlUtils::escapeBindings(AxString const& text)
{
    return isReference(text.string()) ? AxString('$' + text.string()) : text;
}

AxString AxZedXmlUtils::unescapeBindings(AxString const& text)
{
    return isReference(text.string()) && text.string().starts_with("$$") ? AxString(text.string().substr(1)) : text;
}
