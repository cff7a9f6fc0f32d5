#include "AxSystemElement.h"

#include "AxCharacters.h"
#include "AxElement.h"
#include "AxRwElement.h"
#include "AxRwVariableBindings.h"
#include "AxTreeCells.h"
#include "AxUnreadDefinition.h"
#include "AxlFunctions.h"
#include "AxlPrint.h"
#include "AxlSyntaxError.h"

#include <boost/make_shared.hpp>

namespace
{
constexpr char const* theDefinition = "system-definition";
constexpr char const* theTextType = "string";
constexpr char const* theVariableTag = "variable";

AxEnvObjectPtr newObject(AxString const& type, AxEnvValue const& place)
{
    auto object = boost::make_shared<AxEnvObject>(type);
    object->setPlace(place.line(), place.column());
    return object;
}

AxEnvObjectPtr textNode(std::string text, AxEnvValue const& place)
{
    AxEnvObjectPtr const item = newObject(AxTreeCells::theTextTag, place);
    item->add(boost::make_shared<AxEnvValue>(AxString(std::move(text))));
    return item;
}

/// The values of a variable as parameter text; empty, after a report if `reports`, for what is none.
std::string valuesOf(AxEnvObject const& variable, bool reports)
{
    AxString const* const value = variable.attribute("value");
    AxString const* const type = variable.attribute("type");
    std::string text;
    if (value && type && *type == theTextType)
    {
        axAppendQuoted(text, value->string());
        return text;
    }
    try
    {
        text = value ? axWrittenItems(AxTreeCells::parsed(value->string()).get()) : text;
    }
    catch (AxlSyntaxError const& error)
    {
        if (reports)
        {
            AxElement::report(variable, AxSeverity::Error, "unreadable-variable",
                              "the value \"" + value->string() + "\" cannot be read: " + error.diagnostic().text);
        }
        return {};
    }
    if (text.empty() && reports)
    {
        AxElement::report(variable, AxSeverity::Error, "incomplete-variable", "a variable has a name and a value");
    }
    return text;
}

/// "(name value...)" of a variable; null, after a report, when one of the two is missing or cannot be read.
AxEnvObjectPtr itemOf(AxEnvObject const& variable)
{
    if (variable.name().isNull())
    {
        AxElement::report(variable, AxSeverity::Error, "incomplete-variable", "a variable has a name and a value");
        return {};
    }
    std::string const values = valuesOf(variable, true);
    if (values.empty())
    {
        return {};
    }
    std::string text = "(";
    axAppendName(text, AxSymbolString(variable.name()));
    AxEnvObjectPtr const item = textNode(text + ' ' + values + ')', variable);
    item->setName(variable.name());
    return item;
}

/// The items of a set of variables. What is none becomes one as `keep` says.
template <class Keep>
void addVariableItems(AxEnvValuePtr const& element, AxEnvObject& record, Keep const& keep)
{
    AxEnvObjectPtr const variables = AxElement::single(element, AxSystemElement::theVariablesTag);
    for (std::size_t i = 0; variables && i < variables->count(); ++i)
    {
        AxEnvValuePtr const& node = variables->children()[i];
        AxEnvObjectPtr const child = node->castToObject();
        if (child && child->type() == AxTreeCells::theTextTag)
        {
            record.add(AxXmlFragment::copyOf(*child));
            continue;
        }
        bool const isVariable = child && child->type() == theVariableTag;
        if (AxEnvObjectPtr const item = isVariable ? itemOf(*child) : AxEnvObjectPtr())
        {
            record.add(item);
            continue;
        }
        if (!child && axIsBlank(node->value().string()))
        {
            continue;
        }
        if (!isVariable)
        {
            AxXmlFragment::reportUnknown(*node);
        }
        record.add(textNode(AxTreeCells::xmlItem(AxXmlFragment::ofNode(*keep(node))), *node));
    }
}

/// The node in an element for variables of its own, which goes with the others when it is written.
AxEnvValuePtr inOwnElement(AxEnvValuePtr const& node)
{
    auto const variables = boost::make_shared<AxEnvObject>("variable-bindings", AxSystemElement::theVariablesTag);
    variables->add(AxXmlFragment::copyOf(*node));
    return variables;
}

/// What an element says besides what becomes of it, kept by the record that is made.
void addRest(AxEnvObjectPtr const& rest, AxEnvObject& record)
{
    if (rest)
    {
        record.add(textNode(AxTreeCells::xmlItem(AxXmlFragment::ofNode(*rest)), *rest));
    }
}

/// Items that the definition may declare, which is not known, become variables again.
void moveOpenItems(AxEnvironmentPtr const& env, AxEnvObject& record, AxEnvObjectPtr const& variables)
{
    std::vector<AxEnvValuePtr> const children = record.children();
    for (AxEnvValuePtr const& node : children)
    {
        AxEnvObjectPtr const child = node->castToObject();
        bool const isItem =
            child && child->type() == AxTreeCells::theTextTag && child->hasName() && child->count() == 1;
        AxlObjPtr const cells = isItem ? AxTreeCells::cellIn(child->children().front()->value()) : AxlObjPtr();
        AxlObj const* const item = cells->car();
        if (item->car()->isSymbol() && item->cdr()->isPair())
        {
            AxSystemElement::addVariable(env, variables, child->name(), item->cdr());
            record.remove(node);
        }
    }
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
        addRest(AxXmlFragment::restOf(*name, nullptr, true), *record);
    }
    for (AxEnvObject::Attribute const& attribute : system->attributes())
    {
        AxEnvValuePtr const copy = record->setAttribute(attribute.name, attribute.value->value());
        copy->setPlace(attribute.value->line(), attribute.value->column());
    }
    // What the definition declares is read after it.
    auto const isDefinition = [](AxEnvObjectPtr const& child) { return child && child->name() == theDefinition; };
    for (AxEnvValuePtr const& node : system->children())
    {
        if (isDefinition(node->castToObject()))
        {
            record->add(AxXmlFragment::copyOf(*node));
        }
    }
    addVariableItems(system, *record, inOwnElement);
    if (AxEnvObjectPtr const variables = AxElement::first(system, theVariablesTag))
    {
        addRest(restOfVariables(*variables, true), *record);
    }
    for (AxEnvValuePtr const& node : system->children())
    {
        AxEnvObjectPtr const child = node->castToObject();
        if (!child || (!(child->type() == theNameTag) && !(child->type() == theVariablesTag) && !isDefinition(child)))
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
    if (axHasUnreadDefinition(descriptor))
    {
        moveOpenItems(env, *record, variables);
    }
    while (AxEnvObjectPtr const kept = AxElement::first(record, theVariablesTag))
    {
        AxXmlFragment::addRest(*variables, *kept);
        record->remove(kept);
    }
    if (variables->count() != 0 || !variables->attributes().empty())
    {
        record->insert(0, variables);
    }
    if (AxString const* const file = record->attribute(theDefinition))
    {
        auto const name = boost::make_shared<AxEnvObject>(theNameTag, theNameTag);
        name->setAttribute("value", *file);
        if (AxEnvObjectPtr const rest = AxElement::first(record, theNameTag))
        {
            AxXmlFragment::addRest(*name, *rest);
            record->remove(rest);
        }
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
    addVariableItems(element, *set, [](AxEnvValuePtr const& node) { return node; });
    return set;
}

AxEnvObjectPtr AxSystemElement::restOfVariables(AxEnvObject const& variables, bool reports)
{
    auto const rest = newObject(theVariablesTag, variables);
    rest->setName("variable-bindings");
    for (AxEnvObject::Attribute const& attribute : variables.attributes())
    {
        reports ? AxXmlFragment::reportUnknown(variables, attribute) : void();
        rest->setAttribute(attribute.name, attribute.value->value());
    }
    for (AxEnvValuePtr const& node : variables.children())
    {
        AxEnvObjectPtr const child = node->castToObject();
        // One that cannot be read is kept as a whole.
        bool const isRead =
            child && child->type() == theVariableTag && !child->name().isNull() && !valuesOf(*child, false).empty();
        if (AxEnvObjectPtr const part = isRead ? AxXmlFragment::restOf(*child, nullptr, reports) : AxEnvObjectPtr())
        {
            rest->add(part);
        }
    }
    return rest->attributes().empty() && rest->count() == 0 ? AxEnvObjectPtr() : rest;
}

void AxSystemElement::addVariable(AxEnvironmentPtr const& env, AxEnvObjectPtr const& variables, AxString const& name,
                                  AxlObj const* values)
{
    AxEnvObjectPtr const variable = env->addObject(name, theVariableTag, variables);
    if (values->car()->isString() && values->cdr()->nil())
    {
        variable->setAttribute("value", AxString(values->car()->text()));
        variable->setAttribute("type", theTextType);
        return;
    }
    variable->setAttribute("value", AxString(axWrittenItems(values)));
}

void AxSystemElement::addKept(AxEnvironmentPtr const& env, AxEnvObjectPtr const& variables, std::string const& item)
{
    AxlObjPtr const cells = AxTreeCells::parsed(item);
    AxlObj const* const content = cells->car()->cdr()->car();
    bool const isXml = cells->car()->car()->text() == AxTreeCells::theXmlHead && content->isString();
    if (!isXml || !AxXmlFragment::addTo(AxString(content->text()), *variables))
    {
        env->addValue(AxString(item), env->addUnnamedObject(AxTreeCells::theTextTag, variables));
    }
}
