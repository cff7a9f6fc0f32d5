#include "AxDefaultComponentDescriptorFactory.h"

#include "AxActiveSonarSensorDescriptor.h"
#include "AxActuatorComponentDescriptor.h"
#include "AxAggregateAntiAirControllerDescriptor.h"
#include "AxAggregateEmbarkationDescriptor.h"
#include "AxAggregateIndirectFireControllerDescriptor.h"
#include "AxAggregateModelResolutionDescriptor.h"
#include "AxAggregateMoveAlongDescriptor.h"
#include "AxAggregateMoveIntoFormationDescriptor.h"
#include "AxAggregateReleaseBombControllerDescriptor.h"
#include "AxAggregatedMoveToDescriptor.h"
#include "AxAggregatedMovementDescriptor.h"
#include "AxAimWeaponControllerDescriptor.h"
#include "AxAirVehicleWeaponHoldControllerDescriptor.h"
#include "AxAutoAggregateDisaggregateDescriptor.h"
#include "AxAutomotiveActuatorDescriptor.h"
#include "AxAzimuthMountComponentDescriptor.h"
#include "AxBallisticGunControllerDescriptor.h"
#include "AxBallisticGunDescriptor.h"
#include "AxBallisticGunJoyControllerDescriptor.h"
#include "AxBreachObstacleControllerDescriptor.h"
#include "AxCombatRangeControllerDescriptor.h"
#include "AxComponentDescriptor.h"
#include "AxConvoyDescriptor.h"
#include "AxCreateEngineeringObjectControllerDescriptor.h"
#include "AxCruiseMissileLaunchControllerDescriptor.h"
#include "AxDamageAdjudicationComponentDescriptor.h"
#include "AxDestroyEngineeringObjectControllerDescriptor.h"
#include "AxDetonationControllerDescriptor.h"
#include "AxElevatingBallisticGunControllerDescriptor.h"
#include "AxElevationMountComponentDescriptor.h"
#include "AxEmbarkationDescriptor.h"
#include "AxEmbeddedEntitiesDescriptor.h"
#include "AxEmitterComponentDescriptor.h"
#include "AxEngagementReportGeneratorControllerDescriptor.h"
#include "AxEngineeringObjectSensorDescriptor.h"
#include "AxEventTriggerControllerDescriptor.h"
#include "AxFallingFromSkyActuatorDescriptor.h"
#include "AxFixedWingActuatorDescriptor.h"
#include "AxFixedWingDefaultControllerDescriptor.h"
#include "AxFixedWingFlyIntoControllerDescriptor.h"
#include "AxFixedWingFollowEntityControllerDescriptor.h"
#include "AxFixedWingGunneryControllerDescriptor.h"
#include "AxFixedWingLandingDescriptor.h"
#include "AxFixedWingPilotControllerDescriptor.h"
#include "AxFixedWingTakeoffDescriptor.h"
#include "AxFormationControllerDescriptor.h"
#include "AxGlobalEnvironmentActuatorDescriptor.h"
#include "AxGroundCollisionAvoidanceDescriptor.h"
#include "AxGroundFollowEntityDescriptor.h"
#include "AxGroundMoveDirectionControllerDescriptor.h"
#include "AxGroundMoveToDescriptor.h"
#include "AxHumanCoverPointControllerDescriptor.h"
#include "AxHumanFleeControllerDescriptor.h"
#include "AxHumanFollowControllerDescriptor.h"
#include "AxHumanGunActuatorDescriptor.h"
#include "AxHumanJoystickMovementControllerDescriptor.h"
#include "AxHumanMoveAlongControllerDescriptor.h"
#include "AxHumanMoveToControllerDescriptor.h"
#include "AxHumanMovementActuatorDescriptor.h"
#include "AxIffControllerDescriptor.h"
#include "AxIndLifeformLauncherAcquireDescriptor.h"
#include "AxIndirectFireActuatorDescriptor.h"
#include "AxIndirectFireControllerDescriptor.h"
#include "AxIndividualLifeformAcquireDescriptor.h"
#include "AxIntegratedLaserGuidedLauncherDescriptor.h"
#include "AxJammerEmitterDescriptor.h"
#include "AxJoyDeviceControllerDescriptorTemplate.h"
#include "AxLaserDetectorDescriptor.h"
#include "AxLaserGuidedLauncherControllerDescriptor.h"
#include "AxLasingControllerDescriptor.h"
#include "AxLaunchExpendableResourceControllerDescriptor.h"
#include "AxLaunchSmokeControllerDescriptor.h"
#include "AxLauncherActuatorDescriptor.h"
#include "AxLimitExistenceControllerDescriptor.h"
#include "AxMissileDistractionControllerDescriptor.h"
#include "AxMovementBasedTerrainPreloadControllerDescriptor.h"
#include "AxMultipleHitDamageActuatorDescriptor.h"
#include "AxNavigationPreferenceDescriptor.h"
#include "AxNbcSensorDescriptor.h"
#include "AxNbcWeaponControllerDescriptor.h"
#include "AxObjectSensorDescriptor.h"
#include "AxObstructionSensorDescriptor.h"
#include "AxOccupancyDirectorDescriptor.h"
#include "AxPassiveSonarSensorDescriptor.h"
#include "AxPropulsionNoiseGeneratorDescriptor.h"
#include "AxRadarObjectSensorDescriptor.h"
#include "AxRailMovementDescriptor.h"
#include "AxRailPathControllerDescriptor.h"
#include "AxResupplyControllerDescriptor.h"
#include "AxRotaryWingActuatorDescriptor.h"
#include "AxRotaryWingColAvoidanceControllerDescriptor.h"
#include "AxRotaryWingJoyDeviceControllerDescriptor.h"
#include "AxRotaryWingLandingGearDescriptor.h"
#include "AxRotaryWingPilotDescriptor.h"
#include "AxRotaryWingRouteTaskDescriptor.h"
#include "AxRotaryWingTaskDescriptor.h"
#include "AxScriptEnableControllerDescriptor.h"
#include "AxSensorGimbalActuatorDescriptor.h"
#include "AxSensorGimbalControllerDescriptor.h"
#include "AxSignatureObjectSensorDescriptor.h"
#include "AxSimpleProximitySensorDescriptor.h"
#include "AxSpawnControllerDescriptor.h"
#include "AxSpotReportGeneratorControllerDescriptor.h"
#include "AxSpotReportReceiverDescriptor.h"
#include "AxSuppressionActuatorDescriptor.h"
#include "AxSurfaceEntityActuatorDescriptor.h"
#include "AxSurfaceEntityPilotControllerDescriptor.h"
#include "AxSurfaceEntityRoutePilotDescriptor.h"
#include "AxSwingingPartActuatorDescriptor.h"
#include "AxTacticalSmokeActuatorDescriptor.h"
#include "AxTerrainPreloadControllerDescriptor.h"
#include "AxTranslatablePartActuatorDescriptor.h"
#include "AxTurretAcquireControllerDescriptor.h"
#include "AxTurretComponentDescriptor.h"
#include "AxTurretReturnToHeadingControllerDescriptor.h"
#include "AxTurretScanComponentDescriptor.h"
#include "AxUnderFireDeterminationComponentDescriptor.h"
#include "AxWarheadDetonationActuatorDescriptor.h"
#include "AxWeaponActuatorDescriptor.h"
#include "AxWeaponControllerDescriptor.h"
#include "AxZedObjectDataMessengerDescriptor.h"

namespace
{
struct Registration
{
    char const* type;
    AxComponentDescriptor::CreatorFcn creator;
};

// The joystick rows create template instances, which write themselves as their base.
constexpr Registration theRegistrations[] = {
    {"component-descriptor", &AxComponentDescriptor::creator},
    {"event-trigger-controller-descriptor", &AxEventTriggerControllerDescriptor::creator},
    {"actuator-component-descriptor", &AxActuatorComponentDescriptor::creator},
    {"automotive-component-descriptor", &AxAutomotiveActuatorDescriptor::creator},
    {"turret-component-descriptor", &AxTurretComponentDescriptor::creator},
    {"turret-scan-component-descriptor", &AxTurretScanComponentDescriptor::creator},
    {"turret-acquire-controller-descriptor", &AxTurretAcquireControllerDescriptor::creator},
    {"turret-return-to-heading-controller-descriptor", &AxTurretReturnToHeadingControllerDescriptor::creator},
    {"obstruction-sensor-descriptor", &AxObstructionSensorDescriptor::creator},
    {"ballistic-gun-ctlr-descriptor", &AxBallisticGunControllerDescriptor::creator},
    {"elevating-ballistic-gun-ctlr-descriptor", &AxElevatingBallisticGunControllerDescriptor::creator},
    {"ballistic-gun-descriptor", &AxBallisticGunDescriptor::creator},
    {"human-gun-actuator-descriptor", &AxHumanGunActuatorDescriptor::creator},
    {"fix-wing-component-descriptor", &AxFixedWingActuatorDescriptor::creator},
    {"rotary-wing-component-descriptor", &AxRotaryWingActuatorDescriptor::creator},
    {"surface-entity-component-descriptor", &AxSurfaceEntityActuatorDescriptor::creator},
    {"damage-adjudication-actuator-descriptor", &AxDamageAdjudicationComponentDescriptor::creator},
    {"suppression-actuator-descriptor", &AxSuppressionActuatorDescriptor::creator},
    {"under-fire-determination-sensor-descriptor", &AxUnderFireDeterminationComponentDescriptor::creator},
    {"launcher-actuator-descriptor", &AxLauncherActuatorDescriptor::creator},
    {"indirect-fire-actuator-descriptor", &AxIndirectFireActuatorDescriptor::creator},
    {"weapon-actuator-descriptor", &AxWeaponActuatorDescriptor::creator},
    {"weapon-controller-descriptor", &AxWeaponControllerDescriptor::creator},
    {"azimuth-mount-descriptor", &AxAzimuthMountComponentDescriptor::creator},
    {"fixed-wing-default-controller-descriptor", &AxFixedWingDefaultControllerDescriptor::creator},
    {"fixed-wing-pilot-controller-descriptor", &AxFixedWingPilotControllerDescriptor::creator},
    {"fixed-wing-follow-entity-controller-descriptor", &AxFixedWingFollowEntityControllerDescriptor::creator},
    {"rot-wing-pilot-controller-descriptor", &AxRotaryWingPilotDescriptor::creator},
    {"rotary-wing-task-descriptor", &AxRotaryWingTaskDescriptor::creator},
    {"rotary-wing-route-task-descriptor", &AxRotaryWingRouteTaskDescriptor::creator},
    {"surface-entity-pilot-controller-descriptor", &AxSurfaceEntityPilotControllerDescriptor::creator},
    {"surface-entity-route-pilot-controller-descriptor", &AxSurfaceEntityRoutePilotDescriptor::creator},
    {"elevation-mount-descriptor", &AxElevationMountComponentDescriptor::creator},
    {"ground-collision-avoidance-descriptor", &AxGroundCollisionAvoidanceDescriptor::creator},
    {"ground-move-to-descriptor", &AxGroundMoveToDescriptor::creator},
    {"ground-follow-entity-descriptor", &AxGroundFollowEntityDescriptor::creator},
    {"indirect-fire-controller-descriptor", &AxIndirectFireControllerDescriptor::creator},
    {"rot-wing-collision-avoidance-controller-descriptor", &AxRotaryWingColAvoidanceControllerDescriptor::creator},
    {"formation-controller-descriptor", &AxFormationControllerDescriptor::creator},
    {"joy-controller-descriptor", &AxJoyDeviceControllerDescriptorTemplate<AxComponentDescriptor>::creator},
    {"ballistic-gun-joy-ctrl-descriptor",
     &AxJoyDeviceControllerDescriptorTemplate<AxBallisticGunControllerDescriptor>::creator},
    {"convoy-descriptor", &AxConvoyDescriptor::creator},
    {"iff-controller-descriptor", &AxIffControllerDescriptor::creator},
    {"emitter-component-descriptor", &AxEmitterComponentDescriptor::creator},
    {"jammer-emitter-descriptor", &AxJammerEmitterDescriptor::creator},
    {"resupply-controller-descriptor", &AxResupplyControllerDescriptor::creator},
    {"individual-lifeform-acquire-descriptor", &AxIndividualLifeformAcquireDescriptor::creator},
    {"individual-lifeform-launcher-acquire-descriptor", &AxIndLifeformLauncherAcquireDescriptor::creator},
    {"warhead-actuator-descriptor", &AxWarheadDetonationActuatorDescriptor::creator},
    {"cruise-missile-launch-controller-descriptor", &AxCruiseMissileLaunchControllerDescriptor::creator},
    {"fixed-wing-fly-into-controller-descriptor", &AxFixedWingFlyIntoControllerDescriptor::creator},
    {"aggregate-move-along-controller-descriptor", &AxAggregateMoveAlongDescriptor::creator},
    {"aggregate-move-into-formation-controller-descriptor", &AxAggregateMoveIntoFormationDescriptor::creator},
    {"occupancy-director-descriptor", &AxOccupancyDirectorDescriptor::creator},
    {"embarkation-descriptor", &AxEmbarkationDescriptor::creator},
    {"fixed-wing-landing-descriptor", &AxFixedWingLandingDescriptor::creator},
    {"fixed-wing-takeoff-descriptor", &AxFixedWingTakeoffDescriptor::creator},
    {"aggregate-embarkation-descriptor", &AxAggregateEmbarkationDescriptor::creator},
    {"auto-aggregate-disaggregate-controller-descriptor", &AxAutoAggregateDisaggregateDescriptor::creator},
    {"object-sensor-descriptor", &AxObjectSensorDescriptor::creator},
    {"radar-signature-sensor-descriptor", &AxRadarObjectSensorDescriptor::creator},
    {"signature-sensor-descriptor", &AxSignatureObjectSensorDescriptor::creator},
    {"passive-sonar-sensor-descriptor", &AxPassiveSonarSensorDescriptor::creator},
    {"active-sonar-sensor-descriptor", &AxActiveSonarSensorDescriptor::creator},
    {"nbc-sensor-descriptor", &AxNbcSensorDescriptor::creator},
    {"engineering-object-sensor-descriptor", &AxEngineeringObjectSensorDescriptor::creator},
    {"spot-report-generator-controller-descriptor", &AxSpotReportGeneratorControllerDescriptor::creator},
    {"engagement-report-generator-controller-descriptor", &AxEngagementReportGeneratorControllerDescriptor::creator},
    {"air-vehicle-weapon-hold-controller-descriptor", &AxAirVehicleWeaponHoldControllerDescriptor::creator},
    {"swinging-part-actuator-descriptor", &AxSwingingPartActuatorDescriptor::creator},
    {"translatable-part-actuator-descriptor", &AxTranslatablePartActuatorDescriptor::creator},
    {"ground-move-direction-descriptor", &AxGroundMoveDirectionControllerDescriptor::creator},
    {"rail-move-controller-descriptor", &AxRailMovementDescriptor::creator},
    {"human-movement-actuator-descriptor", &AxHumanMovementActuatorDescriptor::creator},
    {"human-move-to-controller-descriptor", &AxHumanMoveToControllerDescriptor::creator},
    {"human-flee-controller-descriptor", &AxHumanFleeControllerDescriptor::creator},
    {"human-cover-point-controller-descriptor", &AxHumanCoverPointControllerDescriptor::creator},
    {"human-move-along-controller-descriptor", &AxHumanMoveAlongControllerDescriptor::creator},
    {"spot-report-receiver-descriptor", &AxSpotReportReceiverDescriptor::creator},
    {"detonation-controller-descriptor", &AxDetonationControllerDescriptor::creator},
    {"simple-proximity-sensor-descriptor", &AxSimpleProximitySensorDescriptor::creator},
    {"launch-smoke-descriptor", &AxLaunchSmokeControllerDescriptor::creator},
    {"tactical-smoke-actuator-descriptor", &AxTacticalSmokeActuatorDescriptor::creator},
    {"laser-controller-descriptor", &AxLasingControllerDescriptor::creator},
    {"laser-detector-descriptor", &AxLaserDetectorDescriptor::creator},
    {"laser-guided-launcher-controller-descriptor", &AxLaserGuidedLauncherControllerDescriptor::creator},
    {"integrated-laser-guided-launcher-controller-descriptor", &AxIntegratedLaserGuidedLauncherDescriptor::creator},
    {"zed-object-data-messenger-descriptor", &AxZedObjectDataMessengerDescriptor::creator},
    {"global-environment-actuator-descriptor", &AxGlobalEnvironmentActuatorDescriptor::creator},
    {"aggregate-model-resolution-descriptor", &AxAggregateModelResolutionDescriptor::creator},
    {"aggregated-move-to-descriptor", &AxAggregatedMoveToDescriptor::creator},
    {"terrain-preload-descriptor", &AxTerrainPreloadControllerDescriptor::creator},
    {"movement-based-terrain-preload-descriptor", &AxMovementBasedTerrainPreloadControllerDescriptor::creator},
    {"combat-range-controller-descriptor", &AxCombatRangeControllerDescriptor::creator},
    {"rail-path-controller-descriptor", &AxRailPathControllerDescriptor::creator},
    {"multiple-hit-damage-actuator-descriptor", &AxMultipleHitDamageActuatorDescriptor::creator},
    {"limit-existence-controller-descriptor", &AxLimitExistenceControllerDescriptor::creator},
    {"fall-from-sky-actuator-descriptor", &AxFallingFromSkyActuatorDescriptor::creator},
    {"launch-expendable-resource-controller-descriptor", &AxLaunchExpendableResourceControllerDescriptor::creator},
    {"missile-distraction-controller-descriptor", &AxMissileDistractionControllerDescriptor::creator},
    {"script-enable-controller-descriptor", &AxScriptEnableControllerDescriptor::creator},
    {"propulsion-noise-generator-descriptor", &AxPropulsionNoiseGeneratorDescriptor::creator},
    {"aggregate-indirect-fire-controller-descriptor", &AxAggregateIndirectFireControllerDescriptor::creator},
    {"aggregate-release-bomb-controller-descriptor", &AxAggregateReleaseBombControllerDescriptor::creator},
    {"aggregate-anti-air-controller-descriptor", &AxAggregateAntiAirControllerDescriptor::creator},
    {"aggregated-movement-actuator-descriptor", &AxAggregatedMovementDescriptor::creator},
    {"nbc-weapon-controller-descriptor", &AxNbcWeaponControllerDescriptor::creator},
    {"create-engineering-object-controller-descriptor", &AxCreateEngineeringObjectControllerDescriptor::creator},
    {"destroy-engineering-object-controller-descriptor", &AxDestroyEngineeringObjectControllerDescriptor::creator},
    {"breach-obstacle-controller-descriptor", &AxBreachObstacleControllerDescriptor::creator},
    {"embedded-entities-descriptor", &AxEmbeddedEntitiesDescriptor::creator},
    {"fixed-wing-gunnery-controller-descriptor", &AxFixedWingGunneryControllerDescriptor::creator},
    {"aim-weapon-controller-descriptor", &AxAimWeaponControllerDescriptor::creator},
    {"human-gun-actuator-descriptor", &AxHumanGunActuatorDescriptor::creator},
    {"human-joystick-movement-controller-descriptor", &AxHumanJoystickMovementControllerDescriptor::creator},
    {"human-follow-controller-descriptor", &AxHumanFollowControllerDescriptor::creator},
    {"rotary-wing-joy-controller-descriptor", &AxRotaryWingJoyDeviceControllerDescriptor::creator},
    {"rotary-wing-landing-gear-descriptor", &AxRotaryWingLandingGearDescriptor::creator},
    {"spawn-controller-descriptor", &AxSpawnControllerDescriptor::creator},
    {"navigation-preference-descriptor", &AxNavigationPreferenceDescriptor::creator},
    {"sensor-gimbal-actuator-descriptor", &AxSensorGimbalActuatorDescriptor::creator},
    {"sensor-gimbal-controller-descriptor", &AxSensorGimbalControllerDescriptor::creator},
};
} // namespace

AxDefaultComponentDescriptorFactory::AxDefaultComponentDescriptorFactory()
{
    registerCreators(this);
}

AxDefaultComponentDescriptorFactory::~AxDefaultComponentDescriptorFactory() = default;

AxDefaultComponentDescriptorFactory* AxDefaultComponentDescriptorFactory::create()
{
    return new AxDefaultComponentDescriptorFactory;
}

void AxDefaultComponentDescriptorFactory::registerCreators(AxComponentDescriptorFactory* factory)
{
    if (factory == nullptr)
    {
        return;
    }
    for (Registration const& row : theRegistrations)
    {
        factory->addCreatorFcn(row.type, row.creator);
    }
}
