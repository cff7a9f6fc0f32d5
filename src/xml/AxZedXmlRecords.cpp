#include "AxElement.h"
#include "AxRwVariableBindings.h"
#include "AxSystemElement.h"
#include "AxTreeCells.h"
#include "AxTypeItem.h"
#include "AxZedObjectParameters.h"
#include "AxZedXmlUtils.h"

#include <exception>
#include <memory>

namespace
{
constexpr char const* theRecordType = "parameter-type";
constexpr char const* theBindings = "variable-bindings";

/// An empty record of the type that the platform names; null after a report.
std::unique_ptr<AxZedObjectParameters> newRecord(AxEnvironmentPtr const& env, AxEnvValuePtr element,
                                                 AxEnvObjectPtr const& platform)
{
    for (AxEnvObject::Attribute const& attribute : platform->attributes())
    {
        if (attribute.name == theRecordType)
        {
            AxlObjPtr const item = AxTreeCells::attributeItem(*platform, attribute, nullptr);
            AxTypeItem::Scope const place(item->cdr()->car());
            AxString const& type = attribute.value->value();
            return std::unique_ptr<AxZedObjectParameters>(
                AxZedObjectParameters::createParameters(type.c_str(), env, &element));
        }
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

void addRecord(AxEnvironmentPtr const& env, AxEnvObjectPtr const& element, AxZedObjectParameters const& record)
{
    AxRwVariableBindings variables;
    for (AxRwVariableBindings const* const set : record.variableBindingsFromLoad())
    {
        AxRwVariableBindings const known = variables;
        variables.addAllFrom(*set);
        variables.addAllFrom(known);
    }
    AxZedXmlUtils::writeVariableBindings(env, element, variables);
    addType(env, element, "objectType", record.objectType());
    if (!(record.matchType() == record.objectType()))
    {
        addType(env, element, "matchType", record.matchType());
    }
    record.putSelf(env, element);
    AxEnvObjectPtr const platform = element->children().back()->castToObject();
    platform->setType("platform");
    if (!record.parameterType().isNull())
    {
        platform->setAttribute(theRecordType, record.parameterType());
    }
    while (AxEnvObjectPtr const set = env->getObject(theBindings, AxTreeCells::theTextTag, platform))
    {
        platform->remove(set);
    }
    moveSystems(env, platform, element, record.systemDescriptorList());
}
} // namespace

AxZedObjectParameters* AxZedXmlUtils::createParameters(AxEnvironmentPtr const& env, AxEnvValuePtr const& element,
                                                       AxFilenameList const& files, AxBindingsList const& bindings)
{
    AxEnvObjectPtr const platform = AxElement::single(element, "platform");
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
        AxRwVariableBindings variables;
        readVariableBindings(env, element, variables);
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
        readSystems(env, element, files, known, record->systemDescriptorList());
        if (!variables.empty())
        {
            record->addVariableBindingsFromLoad(variables);
        }
        return record.release();
    }
    catch (std::exception const& error)
    {
        AxElement::report(*platform, AxSeverity::Error, "read-failed", error.what());
        return nullptr;
    }
}

AxEnvValuePtr AxZedXmlUtils::addObject(AxEnvironmentPtr const& env, AxEnvValuePtr const& parent,
                                       AxZedObjectParameters const& record)
{
    try
    {
        AxEnvObjectPtr const element =
            env ? env->addObject(record.AxReaderWriter::name().string(), AxString("simObject"), parent)
                : AxEnvObjectPtr();
        if (element)
        {
            addRecord(env, element, record);
        }
        return element;
    }
    catch (std::exception const& error)
    {
        AxDiagnostic failure;
        failure.code = "write-failed";
        failure.path = record.AxReaderWriter::name().string().string();
        failure.text = error.what();
        AxDiagnostics::report(std::move(failure));
        return {};
    }
}
