#include "AxComponentSystemDefinition.h"

#include "AxReaderWriterFactory.h"

static AxTypeEntry<AxComponentSystemDefinition> const componentSystemDefinitionEntry;

AxComponentSystemDefinition::AxComponentSystemDefinition(AxSymbolString name, AxComponentSystemDefinition const& other,
                                                         AxReaderWriterRegistry* registry)
    : AxComponentSystemDefinition(name, registry)
{
    assign(other);
}

AxComponentSystemDefinition::AxComponentSystemDefinition(AxComponentSystemDefinition const& other,
                                                         AxReaderWriterRegistry* registry)
    : AxComponentSystemDefinition(other.AxReaderWriter::name(), other, registry)
{
}

AxComponentSystemDefinition::~AxComponentSystemDefinition() = default;

AxComponentSystemDefinition& AxComponentSystemDefinition::operator=(AxComponentSystemDefinition const& other)
{
    assign(other);
    return *this;
}

bool AxComponentSystemDefinition::equals(AxComponentSystemDefinition const& other) const
{
    auto const same = [factory = AxReaderWriter::factory()](AxReaderWriter const& a, AxReaderWriter const& b)
    { return factory->compareReaderWriter(&a, &b); };
    return same(mySystems, other.mySystems) && same(mySensors, other.mySensors) &&
           same(myControllers, other.myControllers) && same(myActuators, other.myActuators) &&
           same(myConnections, other.myConnections) && same(myResources, other.myResources) &&
           same(myMetaData, other.myMetaData);
}

void AxComponentSystemDefinition::setSystemDescriptorList(AxComponentSystemDescriptorList const& systems)
{
    assignSpecified(mySystems, systems);
}

void AxComponentSystemDefinition::setSensorDescriptorList(AxComponentDescriptorList const& sensors)
{
    assignSpecified(mySensors, sensors);
}

void AxComponentSystemDefinition::setControllerDescriptorList(AxComponentDescriptorList const& controllers)
{
    assignSpecified(myControllers, controllers);
}

void AxComponentSystemDefinition::setActuatorDescriptorList(AxComponentDescriptorList const& actuators)
{
    assignSpecified(myActuators, actuators);
}

void AxComponentSystemDefinition::setConnectionDescriptorList(AxConnectionDescriptorList const& connections)
{
    assignSpecified(myConnections, connections);
}

void AxComponentSystemDefinition::setResources(AxSimResourceManager const& resources)
{
    assignSpecified(myResources, resources);
}

AxSymbolString AxComponentSystemDefinition::elementWord()
{
    static AxSymbolString const word("system-definition");
    return word;
}
