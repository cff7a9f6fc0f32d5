#include "AxEnvXMLReader.h"
#include "AxEnvXMLWriter.h"
#include "AxGuarded.h"
#include "AxParameterDbFiles.h"
#include "AxSimulationObjectAggregateState.h"
#include "AxSimulationObjectEntityState.h"
#include "AxSimulationObjectEnvironmentalState.h"
#include "AxSimulationObjectGroupModelSetEntry.h"

#include <array>
#include <boost/make_shared.hpp>
#include <exception>

namespace
{
struct StateClass
{
    std::string_view tag;
    AxSimulationObjectBaseState* (*create)();
};

template <class State>
AxSimulationObjectBaseState* createState()
{
    return new State(AxSymbolString(), nullptr);
}

std::array<StateClass, 4> const& stateClasses()
{
    static std::array<StateClass, 4> const classes{
        {{AxSimulationObjectBaseState::theXmlType(), &createState<AxSimulationObjectBaseState>},
         {AxSimulationObjectEntityState::theXmlType(), &createState<AxSimulationObjectEntityState>},
         {AxSimulationObjectAggregateState::theXmlType(), &createState<AxSimulationObjectAggregateState>},
         {AxSimulationObjectEnvironmentalState::theXmlType(), &createState<AxSimulationObjectEnvironmentalState>}}};
    return classes;
}

/// Null for a tag that no class has.
std::unique_ptr<AxSimulationObjectBaseState> newState(std::string_view tag)
{
    for (StateClass const& known : stateClasses())
    {
        if (known.tag == tag)
        {
            return std::unique_ptr<AxSimulationObjectBaseState>(known.create());
        }
    }
    return nullptr;
}

void reportUnknownState(AxEnvObject const& object)
{
    std::string const& tag = object.type().string();
    std::array<std::string_view, 4> known;
    std::transform(stateClasses().begin(), stateClasses().end(), known.begin(),
                   [](StateClass const& state) { return state.tag; });
    AxDiagnostic finding = axFaultAt("unknown-state", object.line(), object.column(),
                                     "unknown simulation object state \"" + tag + '"', AxSeverity::Warning);
    if (std::string_view const nearest = axNearest(tag, known); !nearest.empty())
    {
        finding.hint = "did you mean \"" + std::string(nearest) + "\"?";
    }
    AxDiagnostics::report(std::move(finding));
}

/// Whether a child of the group's element belongs to the entry: a keyword of it, or an item of text.
bool isOfEntry(AxReaderWriter const& entry, AxEnvObject const& child)
{
    AxString const& keyword = child.hasName() ? child.name() : child.type();
    return child.type() == "sexp" || entry.registryIfAny()->find(AxSymbolString(keyword));
}
} // namespace

bool AxSimulationObjectGroupModelSetEntry::readContent(AxFilename const& file, Content& content) const
{
    AxSourceScope const scope(file);
    try
    {
        AxEnvironmentPtr const env = AxEnvXMLReader::readFile(file);
        AxEnvObjectPtr const root = env && env->root() ? env->root()->castToObject() : AxEnvObjectPtr();
        if (!root)
        {
            return false;
        }
        if (!(root->type() == xmlType()))
        {
            AxDiagnostics::report(
                axFaultAt("no-group", root->line(), root->column(),
                          "expected a simulationObjectGroup, found \"" + root->type().string() + '"'));
            return false;
        }
        content.prologue = env->prologue()->children();
        content.epilogue = env->epilogue()->children();
        std::vector<AxEnvValuePtr> const children = root->children();
        root->removeAll();
        for (AxEnvValuePtr const& child : children)
        {
            if (!readPart(env, child, content))
            {
                root->add(child);
            }
        }
        content.entry = root;
        return true;
    }
    catch (...)
    {
        AxDiagnostics::report(axFault("read-failed", file, axReason()));
    }
    return false;
}

bool AxSimulationObjectGroupModelSetEntry::readPart(AxEnvironmentPtr const& env, AxEnvValuePtr const& child,
                                                    Content& content) const
{
    AxEnvObjectPtr const object = child->castToObject();
    std::unique_ptr<AxSimulationObjectBaseState> state = object ? newState(object->type().string()) : nullptr;
    if (state)
    {
        state->getSelf(env, child, nullFilenames(), nullVariableReference());
        content.parts.push_back({std::move(state), nullptr});
        return true;
    }
    bool const isElement = object && !object->isReserved();
    if (isElement && isOfEntry(*this, *object))
    {
        return false;
    }
    if (isElement)
    {
        reportUnknownState(*object);
    }
    content.parts.push_back({nullptr, child});
    return true;
}

bool AxSimulationObjectGroupModelSetEntry::load(AxFilename const& file)
{
    return axGuarded("read-failed", file, false,
                     [&]
                     {
                         Content content;
                         if (!readContent(file, content))
                         {
                             return false;
                         }
                         AxSourceScope const scope(file);
                         AxRecordOf::getSelf(nullptr, content.entry, nullFilenames(), nullVariableReference());
                         content.entry.reset();
                         myContent = std::move(content);
                         myDirectories.clear();
                         setFilename(file);
                         return true;
                     });
}

bool AxSimulationObjectGroupModelSetEntry::readAllSimulationObject()
{
    return axGuarded("read-failed", AxFilename::nullFilename(), false,
                     [&]
                     {
                         Content content;
                         if (!readContent(foundFile(), content))
                         {
                             return false;
                         }
                         content.entry.reset();
                         myContent = std::move(content);
                         return true;
                     });
}

AxFilename AxSimulationObjectGroupModelSetEntry::foundFile() const
{
    AxFilename const file = filename();
    for (AxFilename const& directory : myDirectories)
    {
        if (AxFilename const inDirectory = directory.combine(file); inDirectory.exists())
        {
            return inDirectory;
        }
    }
    return file;
}

bool AxSimulationObjectGroupModelSetEntry::save()
{
    // Name and directories stay as the set tells them, so that both can be moved together.
    return axGuarded("write-failed", AxFilename::nullFilename(), false, [&] { return write(foundFile()); });
}

bool AxSimulationObjectGroupModelSetEntry::save(AxFilename const& file)
{
    return axGuarded("write-failed", file, false,
                     [&]
                     {
                         if (!write(file))
                         {
                             return false;
                         }
                         AxFilename const name = file; // it may be of the directories
                         myDirectories.clear();
                         setFilename(name);
                         return true;
                     });
}

bool AxSimulationObjectGroupModelSetEntry::write(AxFilename const& file)
{
    if (file.isNull())
    {
        AxDiagnostics::report(axFault("no-file", file, "the group \"" + label().string() + "\" has no file"));
        return false;
    }
    try
    {
        auto const env = boost::make_shared<AxEnvironment>();
        putSelf(env, nullptr);
        AxEnvObjectPtr const root = env->root() ? env->root()->castToObject() : AxEnvObjectPtr();
        if (!root)
        {
            return false; // what failed was told
        }
        bool const hasOwnName = !AxReaderWriter::name().isNull() && !(AxReaderWriter::name() == theElementWord());
        hasOwnName ? root->setName(AxReaderWriter::name().string()) : root->clearName();
        root->removeAttribute("filename");
        for (Part const& part : myContent.parts)
        {
            part.object ? part.object->putSelf(env, root) : static_cast<void>(root->add(part.other));
        }
        for (AxEnvValuePtr const& node : myContent.prologue)
        {
            env->prologue()->add(node);
        }
        for (AxEnvValuePtr const& node : myContent.epilogue)
        {
            env->epilogue()->add(node);
        }
        return AxEnvXMLWriter().writeFile(env, file);
    }
    catch (...)
    {
        AxDiagnostics::report(axFault("write-failed", file, axReason()));
    }
    return false;
}
