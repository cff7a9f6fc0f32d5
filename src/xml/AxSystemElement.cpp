#include "AxSystemElement.h"

#include "AxElement.h"
#include "AxRwElement.h"
#include "AxRwVariableBindings.h"
#include "AxTreeCells.h"
#include "AxlFunctions.h"
#include "AxlPrint.h"

#include <boost/make_shared.hpp>

namespace
{
constexpr char const* theDefinition = "system-definition";
constexpr char const* theTextType = "string";

AxEnvObjectPtr newObject(AxString const& type, AxEnvValue const& place)
{
    auto object = boost::make_shared<AxEnvObject>(type);
    object->setPlace(place.line(), place.column());
    return object;
}

/// "(name value)" of a variable; null, after a report, when one of the two is missing.
AxEnvObjectPtr itemOf(AxEnvObject const& variable)
{
    AxString const* const value = variable.attribute("value");
    if (!value || variable.name().isNull())
    {
        AxElement::report(variable, AxSeverity::Error, "incomplete-variable", "a variable has a name and a value");
        return {};
    }
    AxString const* const type = variable.attribute("type");
    std::string text = "(";
    axAppendName(text, AxSymbolString(variable.name()));
    text += ' ';
    if (type && *type == theTextType)
    {
        axAppendQuoted(text, value->string());
    }
    else
    {
        text += value->string();
    }
    text += ')';
    AxEnvObjectPtr const item = newObject(AxTreeCells::theTextTag, variable);
    item->setName(variable.name());
    item->add(boost::make_shared<AxEnvValue>(AxString(std::move(text))));
    return item;
}

void addVariableItems(AxEnvValuePtr const& element, AxEnvObject& record)
{
    AxElement::forEach(AxElement::single(element, AxSystemElement::theVariablesTag), "variable",
                       [&record](AxEnvObjectPtr const& variable) { record.add(itemOf(*variable)); });
}

/// Items that were not understood stand behind their neighbours, which are about to move: says which these are.
void nameNeighbours(AxEnvObject& record)
{
    AxString last = record.attributes().empty() ? AxString() : record.attributes().back().name;
    for (AxEnvValuePtr const& node : record.children())
    {
        AxEnvObjectPtr const child = node->castToObject();
        if (child && !(child->type() == AxTreeCells::theTextTag))
        {
            last = child->name();
        }
        else if (child && !child->attribute("after"))
        {
            child->setAttribute("after", last);
        }
    }
}
} // namespace

AxEnvObjectPtr AxSystemElement::recordOf(AxEnvObjectPtr const& system)
{
    AxEnvObjectPtr const record = newObject("AxComponentSystemDescriptor", *system);
    record->setName(system->name());
    if (AxEnvObjectPtr const name = AxElement::single(system, theNameTag))
    {
        AxEnvValuePtr const value = record->setAttribute(theDefinition, AxElement::attribute(name, "value"));
        value->setPlace(name->line(), name->column());
    }
    for (AxEnvObject::Attribute const& attribute : system->attributes())
    {
        AxEnvValuePtr const copy = record->setAttribute(attribute.name, attribute.value->value());
        copy->setPlace(attribute.value->line(), attribute.value->column());
    }
    addVariableItems(system, *record);
    for (AxEnvValuePtr const& node : system->children())
    {
        AxEnvObjectPtr const child = node->castToObject();
        if (!child || (!(child->type() == theNameTag) && !(child->type() == theVariablesTag)))
        {
            record->add(AxXmlFragment::copyOf(*node));
        }
    }
    return record;
}

void AxSystemElement::fromRecord(AxEnvironmentPtr const& env, AxEnvObjectPtr const& record,
                                 AxComponentSystemDescriptor const& descriptor)
{
    if (!descriptor.keptItems().empty())
    {
        nameNeighbours(*record);
    }
    auto const variables = boost::make_shared<AxEnvObject>("variable-bindings", theVariablesTag);
    AxReaderWriterRegistry const& members = *descriptor.registryIfAny();
    for (std::size_t i = 0; i < members.size(); ++i)
    {
        AxRegistryEntry const entry = members.entry(i);
        // What the definition declares, and not the class.
        if (entry.content || entry.member->description() || !entry.member->isDue())
        {
            continue;
        }
        AxString const& keyword = entry.keyword.string();
        if (!record->removeAttribute(keyword) && !record->remove(env->getObject(keyword, "", record)))
        {
            continue;
        }
        AxlObjPtr const written = AxTreeCells::parsed(entry.member->writtenText());
        addVariable(env, variables, keyword, written->car()->cdr());
    }
    if (variables->count() != 0)
    {
        record->insert(0, variables);
    }
    if (AxString const* const file = record->attribute(theDefinition))
    {
        auto const name = boost::make_shared<AxEnvObject>(theNameTag, theNameTag);
        name->setAttribute("value", *file);
        record->removeAttribute(theDefinition);
        record->insert(0, name);
    }
    record->removeAttribute("type"); // that of an element of a list of many types
    record->setType(theTag);
}

AxEnvObjectPtr AxSystemElement::variableSetOf(AxEnvValuePtr const& element)
{
    AxEnvObjectPtr const variables = AxElement::first(element, theVariablesTag);
    if (!variables)
    {
        return {};
    }
    AxEnvObjectPtr const set = newObject(theVariablesTag, *variables);
    set->setName("variable-bindings");
    addVariableItems(element, *set);
    return set;
}

void AxSystemElement::addVariable(AxEnvironmentPtr const& env, AxEnvObjectPtr const& variables, AxString const& name,
                                  AxlObj const* values)
{
    AxEnvObjectPtr const variable = env->addObject(name, "variable", variables);
    if (values->car()->isString() && values->cdr()->nil())
    {
        variable->setAttribute("value", AxString(values->car()->text()));
        variable->setAttribute("type", theTextType);
        return;
    }
    variable->setAttribute("value", AxString(axWrittenItems(values)));
}
