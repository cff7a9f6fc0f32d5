#include "AxElement.h"
#include "AxGuarded.h"
#include "AxObjectElement.h"
#include "AxObjectSurroundings.h"
#include "AxRwVariableBindings.h"
#include "AxSystemElement.h"
#include "AxTreeCells.h"
#include "AxTypeItem.h"
#include "AxXmlDocument.h"
#include "AxZedObjectParameters.h"
#include "AxZedXmlUtils.h"

#include <algorithm>
#include <exception>
#include <memory>

namespace
{
constexpr char const* theRecordType = "parameter-type";
constexpr char const* theVariableBindings = "variable-bindings";

/// An empty record of the type that the platform names; null after a report.
std::unique_ptr<AxZedObjectParameters> newRecord(AxEnvironmentPtr const& env, AxEnvValuePtr element,
                                                 AxEnvObjectPtr const& platform)
{
    AxString type;
    AxXmlDocument::Place found{};
    if (AxXmlDocument::attributeOf(*platform, theRecordType, type, found))
    {
        AxlObjPtr const item = AxTreeCells::attributeItem(AxSymbolString(theRecordType), type.string(),
                                                          {found.line, found.column}, nullptr);
        AxTypeItem::Scope const place(item->cdr()->car());
        return std::unique_ptr<AxZedObjectParameters>(
            AxZedObjectParameters::createParameters(type.c_str(), env, &element));
    }
    AxElement::report(*platform, AxSeverity::Error, "no-parameter-type",
                      "expected the attribute \"parameter-type\" in \"platform\"");
    return {};
}

void readSystems(AxEnvironmentPtr const& env, AxEnvValuePtr const& element, AxFilenameList const& files,
                 AxBindingsList const& bindings, AxComponentSystemDescriptorList& systems)
{
    AxElement::forEach(element, AxSystemElement::theTag,
                       [&](AxEnvObjectPtr const& system)
                       {
                           AxComponentSystemDescriptor read(AxSymbolString(system->name()), nullptr);
                           read.getSelf(env, AxSystemElement::recordOf(system), files, bindings);
                           systems.addComponentSystemDescriptor(read);
                       });
}

void addType(AxEnvironmentPtr const& env, AxEnvValuePtr const& element, char const* tag, AxObjectType const& type)
{
    if (!type.isNull())
    {
        env->addAttribute("value", type.string(), env->addObject(tag, tag, element));
    }
}

/// Takes out the elements of the list "systems" in `platform` and puts them behind it as component systems.
void moveSystems(AxEnvironmentPtr const& env, AxEnvObjectPtr const& platform, AxEnvObjectPtr const& element,
                 AxComponentSystemDescriptorList const& systems)
{
    AxEnvObjectPtr const list = env->getObject(systems.AxReaderWriter::name().string(), "", platform);
    if (!list || systems.count() == 0)
    {
        return;
    }
    auto system = systems.begin();
    std::vector<AxEnvValuePtr> const children = list->children();
    for (AxEnvValuePtr const& child : children)
    {
        AxEnvObjectPtr const record = child->castToObject();
        if (record && !(record->type() == AxTreeCells::theTextTag) && system != systems.end())
        {
            AxSystemElement::fromRecord(env, record, **system);
            element->add(record);
            ++system;
        }
    }
    if (list->count() == 0)
    {
        platform->remove(list);
    }
}

/// The last set of variables stands in an element of its own. Those in front of it, which win, stay items of text.
void moveVariables(AxEnvironmentPtr const& env, AxEnvObject& platform)
{
    AxEnvObjectList sets;
    for (AxEnvValuePtr const& node : platform.children())
    {
        AxEnvObjectPtr const child = node->castToObject();
        if (child && child->type() == AxTreeCells::theTextTag && child->name() == theVariableBindings)
        {
            sets.push_back(child);
        }
    }
    if (!sets.empty())
    {
        env->remove(sets.back());
    }
}

/// What stood beside the record in the element that it was made of, or that its text tells of.
AxEnvObjectPtr takeOthers(AxEnvObject& platform, AxZedObjectParameters const& record)
{
    AxEnvObjectPtr others;
    std::vector<AxEnvValuePtr> const children = platform.children();
    for (AxEnvValuePtr const& node : children)
    {
        AxEnvObjectPtr const child = node->castToObject();
        if (child && child->type() == AxObjectElement::theTag)
        {
            platform.remove(node);
            others = child;
        }
    }
    return others ? others : AxObjectElement::othersOf(record.objectNode());
}

void addRecord(AxEnvironmentPtr const& env, AxEnvObjectPtr const& element, AxZedObjectParameters const& record)
{
    AxBindingsList const& sets = record.variableBindingsFromLoad();
    if (!sets.empty())
    {
        AxZedXmlUtils::writeVariableBindings(env, element, *sets.back());
    }
    addType(env, element, AxObjectElement::theTypeTag, record.objectType());
    if (!(record.matchType() == record.objectType()))
    {
        addType(env, element, AxObjectElement::theMatchTypeTag, record.matchType());
    }
    record.putSelf(env, element);
    AxEnvObjectPtr const platform = element->children().back()->castToObject();
    platform->setType(AxObjectElement::thePlatformTag);
    if (!record.parameterType().isNull())
    {
        platform->setAttribute(theRecordType, record.parameterType());
    }
    moveVariables(env, *platform);
    AxEnvObjectPtr const others = takeOthers(*platform, record);
    moveSystems(env, platform, element, record.systemDescriptorList());
    if (others)
    {
        AxObjectSurroundings::restore(*env, element, *others);
        AxObjectElement::addOthers(*element, *others);
    }
}

AxZedObjectParameters* readRecord(AxEnvironmentPtr const& env, AxEnvValuePtr const& element,
                                  AxFilenameList const& files, AxBindingsList const& bindings)
{
    AxEnvObjectPtr const platform = AxElement::single(element, AxObjectElement::thePlatformTag);
    if (!platform)
    {
        if (element)
        {
            AxElement::report(*element, AxSeverity::Error, "no-platform", "expected an element \"platform\"");
        }
        return nullptr;
    }
    try
    {
        std::unique_ptr<AxZedObjectParameters> record = newRecord(env, element, platform);
        if (!record)
        {
            return nullptr;
        }
        AxObjectElement::reportRests(element);
        AxRwVariableBindings variables;
        AxZedXmlUtils::readVariableBindings(env, element, variables);
        AxBindingsList known = bindings;
        if (!variables.empty())
        {
            known.push_front(&variables);
        }
        AxString const name = platform->hasName() ? platform->name() : AxElement::attribute(element, "name");
        if (!name.isNull())
        {
            record->setName(name);
        }
        record->getSelf(env, platform, files, known);
        AxBindingsList const& own = record->variableBindingsFromLoad();
        known.insert(known.begin(), own.begin(), own.end());
        readSystems(env, element, files, known, record->systemDescriptorList());
        if (!variables.empty() || !variables.keptItems().empty())
        {
            record->addVariableBindingsFromLoad(variables);
        }
        return record.release();
    }
    catch (...)
    {
        AxElement::report(*platform, AxSeverity::Error, "read-failed", axReason());
        return nullptr;
    }
}

AxEnvObjectPtr addElement(AxEnvironmentPtr const& env, AxEnvValuePtr const& parent, AxZedObjectParameters const& record)
{
    AxString const name(record.AxReaderWriter::name().string());
    try
    {
        AxEnvObjectPtr const element =
            env ? env->addObject(name, AxString(AxObjectElement::theTag), parent) : AxEnvObjectPtr();
        if (element)
        {
            addRecord(env, element, record);
        }
        return element;
    }
    catch (...)
    {
        AxDiagnostic failure;
        failure.code = "write-failed";
        failure.path = name.string();
        failure.text = axReason();
        AxDiagnostics::report(std::move(failure));
        return {};
    }
}
} // namespace

AxZedObjectParameters* AxZedXmlUtils::createParameters(AxEnvironmentPtr const& env, AxEnvValuePtr const& element,
                                                       AxFilenameList const& files, AxBindingsList const& bindings)
{
    AxZedObjectParameters* const none = nullptr;
    return axGuarded("read-failed", AxFilename::nullFilename(), none,
                     [&] { return readRecord(env, element, files, bindings); });
}

AxEnvValuePtr AxZedXmlUtils::addObject(AxEnvironmentPtr const& env, AxEnvValuePtr const& parent,
                                       AxZedObjectParameters const& record)
{
    return axGuarded("write-failed", AxFilename::nullFilename(), AxEnvValuePtr(),
                     [&] { return AxEnvValuePtr(addElement(env, parent, record)); });
}

void AxZedXmlUtils::keepOthers(AxZedObjectParameters& record, bool isOneOfMany)
{
    AxObjectSurroundings().keepWith(record, isOneOfMany);
}
