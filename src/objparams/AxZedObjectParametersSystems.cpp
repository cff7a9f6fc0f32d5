#include "AxZedObjectParameters.h"

#include "AxActuatorComponentDescriptor.h"
#include "AxComponentSystemDefinition.h"

namespace
{
bool offers(AxComponentSystemDefinition const& system, AxRwAutoConnection const& rule)
{
    return system.connectionDescriptorList().hasSystemOutput(rule.output()) &&
           (rule.outputCategory().isNull() || system.metaData().inSystemCategory(rule.outputCategory()));
}

bool takes(AxComponentSystemDefinition const& system, AxRwAutoConnection const& rule)
{
    return system.connectionDescriptorList().hasSystemInput(rule.input()) &&
           (rule.inputCategory().isNull() || system.metaData().inSystemCategory(rule.inputCategory()));
}

AxString endpoint(AxComponentSystemDescriptor const& system, AxString const& port)
{
    return AxString(system.AxReaderWriter::name().string().string() + ':' + port.string());
}
} // namespace

AxZedObjectParameters::ArtPartList const& AxZedObjectParameters::completeArtPartList() const
{
    rebuildArtPartList();
    return myArtParts;
}

void AxZedObjectParameters::rebuildArtPartList() const
{
    myArtParts.clear();
    for (AxComponentSystemDescriptor* system : mySystems)
    {
        addArtPartsFromSystem(system, myArtParts);
    }
}

void AxZedObjectParameters::addArtPartsFromSystem(AxComponentSystemDescriptor* system, ArtPartList& parts) const
{
    AxComponentSystemDefinition const* const definition = system ? system->systemDefinition() : nullptr;
    if (!definition)
    {
        return;
    }
    for (AxComponentDescriptor* component : definition->actuatorDescriptorList())
    {
        if (auto const* const actuator = dynamic_cast<AxActuatorComponentDescriptor const*>(component))
        {
            for (AxSimArtPartDescriptor* part : actuator->artPartDescriptorList())
            {
                parts.push_back(part);
            }
        }
    }
    for (AxComponentSystemDescriptor* nested : definition->systemDescriptorList())
    {
        addArtPartsFromSystem(nested, parts);
    }
}

void AxZedObjectParameters::connectSystems()
{
    for (AxRwAutoConnection* rule : myAutoConnections)
    {
        createAutomaticConnections(rule);
    }
}

void AxZedObjectParameters::createAutomaticConnections(AxRwAutoConnection* rule)
{
    if (!rule)
    {
        return;
    }
    bool const wasSpecified = myConnections.valueSpecified();
    bool const wasInherited = myConnections.inherited();
    for (AxComponentSystemDescriptor const* sender : mySystems)
    {
        if (!sender->systemDefinition() || !offers(*sender->systemDefinition(), *rule))
        {
            continue;
        }
        AxString const source = endpoint(*sender, rule->output());
        for (AxComponentSystemDescriptor const* receiver : mySystems)
        {
            if (receiver == sender || !receiver->systemDefinition() || !takes(*receiver->systemDefinition(), *rule))
            {
                continue;
            }
            AxString const destination = endpoint(*receiver, rule->input());
            if (!myConnections.findConnection(source, destination))
            {
                myConnections.addConnection(source, destination);
            }
        }
    }
    myConnections.setValueSpecified(wasSpecified, true);
    myConnections.setInherited(wasInherited);
}
