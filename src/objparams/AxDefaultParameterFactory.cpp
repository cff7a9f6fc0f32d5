#include "AxDefaultParameterFactory.h"

#include "AxAggregateObjectParameters.h"
#include "AxBombParameters.h"
#include "AxCulturalFeatureParameters.h"
#include "AxFixedWingEntityParameters.h"
#include "AxGlobalEnvironmentParameters.h"
#include "AxHumanParameters.h"
#include "AxIndividualLifeFormParameters.h"
#include "AxMissileParameters.h"
#include "AxRotaryWingEntityParameters.h"
#include "AxSubSurfaceEntityParameters.h"
#include "AxTacticalSmokeParameters.h"

namespace
{
struct Row
{
    char const* name;
    AxZedObjectParameters::CreatorFcn creator;
};

constexpr Row theRows[] = {
    {"zed-object-param", &AxZedObjectParameters::creator},
    {"moving-object-param", &AxMovingObjectParameters::creator},
    {"ground-vehicle-param", &AxGroundVehicleParameters::creator},
    {"cultural-feature-param", &AxCulturalFeatureParameters::creator},
    {"fixed-wing-entity-param", &AxFixedWingEntityParameters::creator},
    {"rotary-wing-entity-param", &AxRotaryWingEntityParameters::creator},
    {"missile-param", &AxMissileParameters::creator},
    {"bomb-param", &AxBombParameters::creator},
    {"surface-entity-param", &AxSurfaceEntityParameters::creator},
    {"individual-lifeform-param", &AxIndividualLifeFormParameters::creator},
    {"human-param", &AxHumanParameters::creator},
    {"aggregate-object-param", &AxAggregateObjectParameters::creator},
    {"tactical-smoke-param", &AxTacticalSmokeParameters::creator},
    {"global-environment-param", &AxGlobalEnvironmentParameters::creator},
    {"subsurface-entity-param", &AxSubSurfaceEntityParameters::creator},
    // Plain records; `parameterType` tells what they were created as.
    {"zed-base-object-param", &AxZedObjectParameters::creator},
    {"scripted-movement-object-param", &AxZedObjectParameters::creator},
    {"point-object-param", &AxZedObjectParameters::creator},
    {"symbol-object-param", &AxZedObjectParameters::creator},
    {"line-object-param", &AxZedObjectParameters::creator},
    {"area-object-param", &AxZedObjectParameters::creator},
    {"circle-object-param", &AxZedObjectParameters::creator},
    {"text-object-param", &AxZedObjectParameters::creator},
};
} // namespace

AxDefaultParameterFactory::AxDefaultParameterFactory()
{
    registerCreators(this);
}

AxDefaultParameterFactory::~AxDefaultParameterFactory() = default;

AxDefaultParameterFactory* AxDefaultParameterFactory::create()
{
    return new (std::nothrow) AxDefaultParameterFactory;
}

void AxDefaultParameterFactory::registerCreators(AxZedObjectParameterFactory* factory)
{
    if (factory == nullptr)
    {
        return;
    }
    for (Row const& row : theRows)
    {
        factory->addCreatorFcn(row.name, row.creator);
    }
}
