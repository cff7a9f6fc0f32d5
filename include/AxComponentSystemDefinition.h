#pragma once

#include "AxComponentDescriptorList.h"
#include "AxComponentSystemDescriptorList.h"
#include "AxComponentSystemMetaData.h"
#include "AxConnectionDescriptorList.h"
#include "AxRecordOf.h"
#include "AxRwStringList.h"
#include "AxSimResourceManager.h"

/// A reusable bundle of components, their connections, resources and nested systems, with meta-data. Usually a file of
/// its own; owned by the descriptor or the database that read it.
class ZEDOBJPARAM_API AxComponentSystemDefinition
    : public AxRecordOf<AxComponentSystemDefinition, "AxComponentSystemDefinition">
{
public:
    using AxRecordOf::AxRecordOf;
    AxComponentSystemDefinition(AxSymbolString name, AxComponentSystemDefinition const& other,
                                AxReaderWriterRegistry* registry);
    AxComponentSystemDefinition(AxComponentSystemDefinition const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxComponentSystemDefinition() override;
    AxComponentSystemDefinition& operator=(AxComponentSystemDefinition const& other);

    /// Everything but the compatibility names.
    bool equals(AxComponentSystemDefinition const& other) const;
    bool operator==(AxComponentSystemDefinition const& other) const { return equals(other); }

    AxComponentSystemDescriptorList const& systemDescriptorList() const { return mySystems; }
    AxComponentSystemDescriptorList& systemDescriptorList() { return mySystems; }
    void setSystemDescriptorList(AxComponentSystemDescriptorList const& systems);
    AxComponentDescriptorList const& sensorDescriptorList() const { return mySensors; }
    AxComponentDescriptorList& sensorDescriptorList() { return mySensors; }
    void setSensorDescriptorList(AxComponentDescriptorList const& sensors);
    AxComponentDescriptorList const& controllerDescriptorList() const { return myControllers; }
    AxComponentDescriptorList& controllerDescriptorList() { return myControllers; }
    void setControllerDescriptorList(AxComponentDescriptorList const& controllers);
    AxComponentDescriptorList const& actuatorDescriptorList() const { return myActuators; }
    AxComponentDescriptorList& actuatorDescriptorList() { return myActuators; }
    void setActuatorDescriptorList(AxComponentDescriptorList const& actuators);
    AxConnectionDescriptorList const& connectionDescriptorList() const { return myConnections; }
    AxConnectionDescriptorList& connectionDescriptorList() { return myConnections; }
    void setConnectionDescriptorList(AxConnectionDescriptorList const& connections);
    AxSimResourceManager const& resources() const { return myResources; }
    AxSimResourceManager& resources() { return myResources; }
    void setResources(AxSimResourceManager const& resources);
    AxComponentSystemMetaData const& metaData() const { return myMetaData; }
    AxComponentSystemMetaData& metaData() { return myMetaData; }
    AxRwStringList const& compatibilityPsrNames() const { return myCompatibilityPsrNames; }
    AxRwStringList& compatibilityPsrNames() { return myCompatibilityPsrNames; }

    /// What a definition is called in text.
    static AxSymbolString elementWord();

private:
    AxComponentSystemDescriptorList mySystems{{"systems", "", "Nested systems."}, registry()};
    AxComponentDescriptorList mySensors{{"sensors", "", "Components that perceive."}, registry()};
    AxComponentDescriptorList myControllers{{"controllers", "", "Components that decide."}, registry()};
    AxComponentDescriptorList myActuators{{"actuators", "", "Components that act."}, registry()};
    AxConnectionDescriptorList myConnections{{"connections", "", "Wires between the components."}, registry()};
    AxSimResourceManager myResources{{"resources", "", "What the system consumes."}, registry()};
    AxComponentSystemMetaData myMetaData{{"meta-data", "", "Name, uses, parameters and ports."}, registry()};
    AxRwStringList myCompatibilityPsrNames{
        {"compatibility-psr-names", "", "Names of process state repositories that older versions used."}, registry()};
};
