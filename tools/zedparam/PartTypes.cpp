#include "PartTypes.h"

#include <utility>

#include "AxAmmoSelectEntry.h"
#include "AxCommModelDescriptor.h"
#include "AxComponentSystemDefinition.h"
#include "AxComponentSystemDescriptor.h"
#include "AxConnectionDescriptor.h"
#include "AxDetectionPrbRangeCalcEntry.h"
#include "AxDetectionPrbRangeLookupEntry.h"
#include "AxDmgAngleOfIncidenceRangeCalcTable.h"
#include "AxDmgAngleOfIncidenceRangeLookupTable.h"
#include "AxDmgMunitionEntry.h"
#include "AxDmgSurfaceEntry.h"
#include "AxModelSet.h"
#include "AxPhysicalWorldParams.h"
#include "AxPrbCoefficientsRangeDeterminant.h"
#include "AxPrbTableRangeDeterminant.h"
#include "AxReaderWriterFactory.h"
#include "AxRemoteConfiguration.h"
#include "AxRwSpatialFilter.h"
#include "AxSimMunition.h"
#include "AxSimulationObjectAggregateState.h"
#include "AxSimulationObjectEntityState.h"
#include "AxSimulationObjectEnvironmentalState.h"
#include "AxSimulationObjectGroupModelSetEntry.h"
#include "AxSxpParameterDbFileData.h"
#include "AxSxpParameterDbFileEntry.h"
#include "AxSystemMetaDataEntry.h"
#include "AxSystemParameterData.h"
#include "AxTargetAcquireCriteria.h"
#include "AxTaskExecutionRules.h"
#include "AxTaskGroup.h"
#include "AxZedStateRepositoryUserExtension.h"

namespace
{
class Gathered
{
public:
    void add(std::string name, AxReaderWriter* made)
    {
        if (made != nullptr)
        {
            all.push_back({std::move(name), std::unique_ptr<AxReaderWriter>(made)});
        }
    }

    template <class T>
    void add(char const* word = nullptr)
    {
        std::unique_ptr<AxReaderWriter> made;
        if constexpr (std::is_constructible_v<T, AxSymbolString, AxReaderWriterRegistry*>)
        {
            made = std::make_unique<T>(AxSymbolString(), nullptr);
        }
        else
        {
            made = std::make_unique<T>();
        }
        char const* const name = word != nullptr ? word : made->readerWriterType();
        add(name, made.release());
    }

    /// Everything that a factory by type names makes.
    template <class Factory>
    void addAll(Factory const& factory)
    {
        for (AxString const& name : factory.keys())
        {
            add(name.string(), factory.create(name, name));
        }
    }

    std::vector<PartType> all;
};
} // namespace

std::vector<PartType> newPartTypes()
{
    Gathered parts;
    AxReaderWriterFactory const kindsOfMembers(true);
    for (AxString const& name : AxReaderWriter::factory()->typeNames())
    {
        if (!kindsOfMembers.knowsType(name))
        {
            parts.add(name.string(), AxReaderWriter::factory()->createItem(name, "", nullptr));
        }
    }
    parts.add<AxPhysicalWorldParams>("physical-world-param");
    parts.add<AxCommModelDescriptor>("comm-model-descriptor");
    parts.addAll(*AxRwSpatialFilter::factory());
    parts.add<AxTargetAcquireCriteria>();
    parts.add<AxTaskExecutionRules>("task-execution-rules");
    parts.add<AxTaskGroup>();
    parts.add<AxZedStateRepositoryUserExtension>();
    parts.add<AxComponentSystemDescriptor>();
    parts.add<AxComponentSystemDefinition>("system-definition");
    parts.addAll(*AxSystemParameterData::factory());
    parts.addAll(*AxSystemMetaDataEntry::factory());
    parts.add<AxConnectionDescriptor>();
    parts.add<AxRemoteConfiguration>();
    parts.add<AxPrbTableRangeDeterminant>();
    parts.add<AxPrbCoefficientsRangeDeterminant>();
    parts.add<AxDetectionPrbRangeLookupEntry>();
    parts.add<AxDetectionPrbRangeCalcEntry>();
    parts.add<AxDmgSurfaceEntry>();
    parts.add<AxDmgAngleOfIncidenceRangeLookupTable>();
    parts.add<AxDmgAngleOfIncidenceRangeCalcTable>();
    parts.add<AxDmgMunitionEntry>();
    parts.add<AxAmmoSelectEntry>();
    parts.add<AxSimMunition>();
    parts.add<AxModelSet>("model-set");
    parts.add<AxModelSetEntry>("model");
    parts.add<AxSimulationObjectGroupModelSetEntry>("simulation-object-group");
    parts.add<AxSimulationObjectEntityState>();
    parts.add<AxSimulationObjectAggregateState>();
    parts.add<AxSimulationObjectEnvironmentalState>();
    parts.add<AxSxpParameterDbFileData>("parameter-database");
    parts.add<AxSxpParameterDbFileEntry>("parameter-entry");
    return std::move(parts.all);
}
