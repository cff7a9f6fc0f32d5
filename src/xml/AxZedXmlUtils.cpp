#include "AxZedXmlUtils.h"

#include "AxElement.h"
#include "AxEnvXMLReader.h"
#include "AxEnvXMLWriter.h"
#include "AxGuarded.h"
#include "AxObjectElement.h"
#include "AxObjectIndex.h"
#include "AxRwObjectType.h"
#include "AxRwVariableBindings.h"
#include "AxSystemElement.h"

#include <algorithm>

namespace
{
using namespace AxObjectElement;

AxEnvValuePtr lastObject(AxEnvironmentPtr const& env, AxObjectType const& type, bool isMatchType)
{
    return axGuarded("no-element", AxFilename::nullFilename(), AxEnvValuePtr(),
                     [&] { return AxObjectIndex::walkTo(env, type, isMatchType); });
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
    axGuarded("no-element", AxFilename::nullFilename(), false,
              [&]
              {
                  AxEnvObjectList const objects = allOf(env);
                  elements.insert(elements.end(), objects.begin(), objects.end());
                  return true;
              });
}

AxEnvValuePtr AxZedXmlUtils::findObjectElementByObjectType(AxEnvironmentPtr const& env, AxObjectType const& type)
{
    return lastObject(env, type, false);
}

AxEnvValuePtr AxZedXmlUtils::findObjectElementByMatchType(AxEnvironmentPtr const& env, AxObjectType const& type)
{
    return lastObject(env, type, true);
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
    return AxElement::first(element, thePlatformTag);
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
    if (!env || !element || (variables.empty() && variables.keptItems().empty()))
    {
        return;
    }
    AxEnvObjectPtr const set = env->addObject("variable-bindings", AxSystemElement::theVariablesTag, element);
    for (AxSymbolString const name : set ? variables.names() : std::vector<AxSymbolString>())
    {
        AxSystemElement::addVariable(env, set, name.string(), variables.find(name)->get());
    }
    for (auto const& [after, item] : variables.keptItems())
    {
        AxSystemElement::addKept(env, set, item);
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
