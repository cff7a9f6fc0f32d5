#include "AxSimulationObjectGroupModelSetEntry.h"

#include "AxReaderWriterFactory.h"
#include "AxSimulationObjectAggregateState.h"
#include "AxSimulationObjectEntityState.h"
#include "AxSimulationObjectEnvironmentalState.h"

#include <algorithm>
#include <memory>

static AxTypeEntry<AxSimulationObjectGroupModelSetEntry> const simulationObjectGroupModelSetEntryEntry{
    AxTypeOps::withCreator<AxSimulationObjectGroupModelSetEntry>()};

AxSimulationObjectGroupModelSetEntry::Content::Content() = default;
AxSimulationObjectGroupModelSetEntry::Content::Content(Content&&) noexcept = default;
AxSimulationObjectGroupModelSetEntry::Content&
AxSimulationObjectGroupModelSetEntry::Content::operator=(Content&&) noexcept = default;
AxSimulationObjectGroupModelSetEntry::Content::~Content() = default;

AxSimulationObjectGroupModelSetEntry::~AxSimulationObjectGroupModelSetEntry() = default;

AxSimulationObjectGroupModelSetEntry&
AxSimulationObjectGroupModelSetEntry::operator=(AxSimulationObjectGroupModelSetEntry const& other)
{
    if (this != &other)
    {
        AxModelSetEntry::operator=(other);
        Content copy;
        for (Part const& part : other.myContent.parts)
        {
            copy.parts.push_back(
                {part.object ? std::unique_ptr<AxSimulationObjectBaseState>(part.object->clone()) : nullptr,
                 part.other});
        }
        copy.prologue = other.myContent.prologue;
        copy.epilogue = other.myContent.epilogue;
        myContent = std::move(copy);
        myDirectories = other.myDirectories;
    }
    return *this;
}

AxSimulationObjectGroupModelSetEntry* AxSimulationObjectGroupModelSetEntry::clone() const
{
    auto made = std::make_unique<AxSimulationObjectGroupModelSetEntry>(AxReaderWriter::name(), nullptr);
    *made = *this;
    return made.release();
}

AxSymbolString AxSimulationObjectGroupModelSetEntry::theElementWord()
{
    static AxSymbolString const word("simulation-object-group");
    return word;
}

void AxSimulationObjectGroupModelSetEntry::addSimulatonObject(AxSimulationObjectBaseState const& state)
{
    addCopy(state);
}

void AxSimulationObjectGroupModelSetEntry::addSimulatonObject(AxSimulationObjectEntityState const& state)
{
    addCopy(state);
}

void AxSimulationObjectGroupModelSetEntry::addSimulatonObject(AxSimulationObjectAggregateState const& state)
{
    addCopy(state);
}

void AxSimulationObjectGroupModelSetEntry::addSimulatonObject(AxSimulationObjectEnvironmentalState const& state)
{
    addCopy(state);
}

void AxSimulationObjectGroupModelSetEntry::addCopy(AxSimulationObjectBaseState const& state)
{
    myContent.parts.push_back({std::unique_ptr<AxSimulationObjectBaseState>(state.clone()), nullptr});
}

void AxSimulationObjectGroupModelSetEntry::clearSimulationObjects()
{
    std::erase_if(myContent.parts, [](Part const& part) { return part.object != nullptr; });
}

std::vector<AxSimulationObjectBaseState*> AxSimulationObjectGroupModelSetEntry::simulationObjects() const
{
    std::vector<AxSimulationObjectBaseState*> objects;
    for (Part const& part : myContent.parts)
    {
        if (part.object)
        {
            objects.push_back(part.object.get());
        }
    }
    return objects;
}

bool AxSimulationObjectGroupModelSetEntry::equals(AxSimulationObjectGroupModelSetEntry const& other) const
{
    std::vector<AxSimulationObjectBaseState*> const mine = simulationObjects();
    std::vector<AxSimulationObjectBaseState*> const theirs = other.simulationObjects();
    return AxModelSetEntry::equals(other) && std::equal(mine.begin(), mine.end(), theirs.begin(), theirs.end(),
                                                        [](AxReaderWriter const* a, AxReaderWriter const* b)
                                                        { return factory()->compareReaderWriter(a, b); });
}

void AxSimulationObjectGroupModelSetEntry::getSelf(AxlObjPtr const& expression, AxFilenameList const& files,
                                                   AxBindingsList const& bindings)
{
    myDirectories = files;
    AxRecordOf::getSelf(expression, files, bindings);
}
