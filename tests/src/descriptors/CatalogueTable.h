#pragma once

#include <string_view>

/// Every type of component, of object record and of record that the reader/writer factory makes, as "type : type it
/// extends", and below it the keywords that it adds, in their order, each with the class of its member. A type in
/// brackets has no name of its own in a text; "-" is a member without a keyword. The lists that a record gains when it
/// is initialised are left out.
inline constexpr std::string_view theCatalogue = R"(
component-descriptor : -
    component-type AxRwString; min-tick-period AxRwReal; min-tick-period-variance AxRwReal;
    tick-period-uses-real-time AxRwBoolean; process-state-repository-name AxRwString;
    process-state-repository-type AxRwString; is-enabled AxRwBoolean; debug-detail AxRwBoolean;
    min-task-visualization-tick-period AxRwReal; create-component AxRwBoolean; create-on-remote-object AxRwBoolean
event-trigger-controller-descriptor : component-descriptor
    detection-level-to-trigger AxRwInt; object-types-to-detect AxRwObjectTypeList
actuator-component-descriptor : component-descriptor
    art-part-list AxSimArtPartDescriptorList
automotive-component-descriptor : actuator-component-descriptor
    check-terrain-collisions AxRwBoolean; use-high-fidelity-ground-clamping AxRwBoolean
turret-component-descriptor : actuator-component-descriptor
    max-slew-rate AxRwReal; fixed-az AxRwBoolean; left-slew-limit AxRwReal; right-slew-limit AxRwReal
turret-scan-component-descriptor : component-descriptor
    scan-rate AxRwReal; minimum-scan-width AxRwReal; scan-sor AxRwBoolean
turret-acquire-controller-descriptor : component-descriptor
    track-by-signature AxRwBoolean; track-signature-domain AxRwString; min-track-signature AxRwReal;
    max-alignment-angle AxRwReal
turret-return-to-heading-controller-descriptor : component-descriptor
    neutral-heading AxRwReal; start-delay AxRwReal
obstruction-sensor-descriptor : component-descriptor
    lateral-clearance AxRwReal; stopping-distance-factor AxRwReal; check-obstructions-if-embarked AxRwBoolean;
    object-types AxRwObjectTypeList; feature-types-to-avoid AxRwStringList
ballistic-gun-ctlr-descriptor : component-descriptor
    load-ammo-time AxRwReal; unload-ammo-time AxRwReal; ammo-select-table-file AxReaderWriterFile;
    ammo-select-table AxAmmoSelectTable; rounds-per-trigger-pull AxRwInt;
    targeting-control AxTargetSelectionCriteria; disabled-by-suppression AxRwBoolean;
    treat-selected-target-as-tasked AxRwBoolean; required-tokens AxRwString; gun-priority AxRwInt
elevating-ballistic-gun-ctlr-descriptor : ballistic-gun-ctlr-descriptor
    max-elevation-rate AxRwReal; gun-to-control AxRwInt
ballistic-gun-descriptor : actuator-component-descriptor
    max-elevation-rate AxRwReal; max-elevation-range AxRwReal; min-elevation-range AxRwReal;
    neutral-elevation AxRwReal; muzzle-speed AxRwReal; rounds-per-magazine AxRwInt; rounds-per-minute AxRwInt;
    extra-time-between-bursts AxRwReal; start-with-tracers AxRwBoolean; muzzle-offset AxRwOffsetVector;
    velocity-affects-hit-chance AxRwBoolean; hit-probability-file AxReaderWriterFile;
    hit-probability-table AxRangeProbabilityTable; range-name AxRwString; detonate-on-miss AxRwBoolean;
    rounds-per-detonation AxRwInt; burst-cep AxRwReal
human-gun-actuator-descriptor : ballistic-gun-descriptor
    max-azimuth-rate AxRwReal; max-azimuth-range AxRwReal; min-azimuth-range AxRwReal
fix-wing-component-descriptor : actuator-component-descriptor
    max-thrust-acceleration AxRwReal; terrain-check AxRwBoolean; drag-coefficient AxRwReal
rotary-wing-component-descriptor : actuator-component-descriptor
    crash-velocity AxRwReal; landing-position-threshold AxRwReal; landing-velocity-threshold AxRwReal;
    clamped-frame-rate AxRwReal; drag-coefficient AxRwReal
surface-entity-component-descriptor : actuator-component-descriptor
    max-yaw-acceleration AxRwReal; max-yaw-rate AxRwReal; check-soil-type AxRwBoolean; stopping-speed AxRwReal;
    turn-roll-rate AxRwReal; speed-pitch-rate AxRwReal; sinking-time AxRwReal
damage-adjudication-actuator-descriptor : actuator-component-descriptor
suppression-actuator-descriptor : actuator-component-descriptor
under-fire-determination-sensor-descriptor : component-descriptor
launcher-actuator-descriptor : actuator-component-descriptor
    launcher-muzzle-offset AxRwVector; azimuth-range AxRwReal; elevation-range AxRwReal
indirect-fire-actuator-descriptor : weapon-actuator-descriptor
    probable-error-in-range AxRwReal; probable-error-in-displacement AxRwReal;
    probable-error-in-burst-height AxRwReal; simulate-munition AxRwBoolean; high-angle AxRwBoolean
weapon-actuator-descriptor : actuator-component-descriptor
    projectile-start-speed AxRwReal; muzzle-offset AxRwVector
weapon-controller-descriptor : (base-weapon-controller)
    ammo-select-table-file AxReaderWriterFile; ammo-select-table AxAmmoSelectTable; range-name AxRwString;
    targeting-control AxTargetSelectionCriteria
azimuth-mount-descriptor : actuator-component-descriptor
    max-slew-rate AxRwReal; nominal-azimuth AxRwReal; azimuth-range AxRwReal
fixed-wing-default-controller-descriptor : fixed-wing-pilot-controller-descriptor
    radius AxRwReal; clockwise AxRwBoolean
fixed-wing-pilot-controller-descriptor : component-descriptor
    max-turnrate-cutoff-angle AxRwReal; max-taxiing-turn-speed AxRwReal; max-pitch-angle AxRwReal; at-time AxRwReal;
    near-time AxRwReal; taxiing-at-distance AxRwReal; taxiing-near-distance AxRwReal;
    taxiing-approach-speed AxRwReal; time-to-target-altitude AxRwReal
fixed-wing-follow-entity-controller-descriptor : fixed-wing-pilot-controller-descriptor
    taxiing-near-catch-up-factor AxRwReal; taxiing-far-catch-up-factor AxRwReal;
    taxiing-passed-slow-down-factor AxRwReal; flying-catch-up-factor AxRwReal; flying-catch-up-distance AxRwReal
rot-wing-pilot-controller-descriptor : rotary-wing-task-descriptor
    pd-radius AxRwReal; contour-flight-velocity-threshold AxRwReal; contour-flight-position-threshold AxRwReal;
    height-feedback-gain AxRwReal; height-versus-speed Ax1DRegularTableFn; is-align-with-targets AxRwBoolean;
    max-angular-vel AxRwReal; max-angular-acc AxRwReal; vel-to-align-desired AxRwReal; vel-to-align-actual AxRwReal;
    radius-trigger-vel AxRwReal; radius-fraction AxRwReal; position-gain AxRwReal; velocity-gain AxRwReal;
    orientation-gain AxRwReal; body-rate-gain AxRwReal; noise-level AxRwReal; landing-fuel-level AxRwReal
rotary-wing-task-descriptor : component-descriptor
    default-aggressiveness AxRwReal; transition-radius AxRwReal
rotary-wing-route-task-descriptor : rotary-wing-task-descriptor
    route-transition-radius AxRwReal; route-x-gain AxRwReal; route-y-gain AxRwReal; route-z-gain AxRwReal;
    route-lookahead-factor AxRwReal
surface-entity-pilot-controller-descriptor : component-descriptor
    at-distance AxRwReal; near-distance AxRwReal; normal-acceleration-fraction AxRwReal;
    normal-lateral-acceleration-fraction AxRwReal
surface-entity-route-pilot-controller-descriptor : surface-entity-pilot-controller-descriptor
elevation-mount-descriptor : actuator-component-descriptor
    nominal-elevation AxRwReal; elevation-range AxRwReal; max-elevate-rate AxRwReal
ground-collision-avoidance-descriptor : component-descriptor
    time-to-collide AxRwReal; lateral-clearance AxRwReal; stopping-distance-factor AxRwReal
ground-move-to-descriptor : component-descriptor
    near-distance AxRwReal; at-distance AxRwReal; approach-speed AxRwReal; road-center-offset AxRwReal
ground-follow-entity-descriptor : ground-move-to-descriptor
    near-catch-up-factor AxRwReal; far-catch-up-factor AxRwReal; passed-slow-down-factor AxRwReal;
    distance-replan-threshold AxRwReal; time-replan-threshold AxRwReal; target-lookahead-time AxRwReal;
    destination-smoothing-period AxRwReal
indirect-fire-controller-descriptor : (base-weapon-controller)
    default-ammo-list AxRwStringList; num-rounds-per-mission AxRwInt; min-range AxRwReal;
    max-range-list AxNLengthRealVector; range-name AxRwString; weapon-name AxRwString;
    capable-of-direct-alignment AxRwBoolean
rot-wing-collision-avoidance-controller-descriptor : rotary-wing-task-descriptor
    nominal-distance AxRwReal; search-distance AxRwReal; collision-limit AxRwReal; clearing-distance AxRwReal;
    time-to-minimum-distance AxRwReal; drifting-speed AxRwReal; minimum-diving-altitude AxRwReal
formation-controller-descriptor : component-descriptor
    auto-promote-in-formation AxRwBoolean
joy-controller-descriptor : component-descriptor
    joystick-device AxRwString; joystick-controls AxRwTemplatedListPtr<AxRwJoystickControl, 1>
ballistic-gun-joy-ctrl-descriptor : ballistic-gun-ctlr-descriptor
    joystick-device AxRwString; joystick-controls AxRwTemplatedListPtr<AxRwJoystickControl, 1>
convoy-descriptor : rail-path-controller-descriptor
    separation-distance AxRwReal; separation-tolerance AxRwReal
iff-controller-descriptor : component-descriptor
    system-name-enum AxRwInt; mode-1-capable AxRwBoolean; mode-2-capable AxRwBoolean; mode-3-capable AxRwBoolean;
    mode-4-capable AxRwBoolean; system-on AxRwBoolean; system-operational AxRwBoolean; mode-1-on AxRwBoolean;
    mode-1-damage AxRwBoolean; mode-1-malfunction AxRwBoolean; mode-1-code AxRwInt; mode-2-on AxRwBoolean;
    mode-2-damage AxRwBoolean; mode-2-malfunction AxRwBoolean; mode-2-code AxRwInt; mode-3-on AxRwBoolean;
    mode-3-damage AxRwBoolean; mode-3-malfunction AxRwBoolean; mode-3-code AxRwInt; mode-4-on AxRwBoolean;
    mode-4-damage AxRwBoolean; mode-4-malfunction AxRwBoolean; mode-4-code AxRwInt; alt-mode-4-valid AxRwBoolean;
    mode-s-tcas-i AxRwBoolean; mode-s-on AxRwBoolean; mode-s-damage AxRwBoolean; mode-s-malfunction AxRwBoolean;
    emergency AxRwBoolean; flash AxRwBoolean; sti AxRwBoolean; unmanned-aircraft AxRwBoolean; pin AxRwInt;
    mode-5-level-selection AxRwBoolean; message-formats-present AxRwUnsigned; national-origin AxRwUnsigned;
    navigation-source AxRwUnsigned; figure-of-merit AxRwUnsigned
emitter-component-descriptor : component-descriptor
    mount-location AxRwVector; on-at-start AxRwBoolean; radar-mode-at-start AxRwString;
    use-high-density-tracking-at-start AxRwBoolean; use-high-density-jamming-at-start AxRwBoolean;
    emitter-system AxEmitterSystemEntry
jammer-emitter-descriptor : emitter-component-descriptor
    jamming-strength AxRwReal; jamming-range AxRwReal; jammer-type AxRwString; publish-emitter-system AxRwBoolean;
    available-postures AxRwString
resupply-controller-descriptor : component-descriptor
    supplying-mode AxRwString; range AxRwReal; supplies-offered AxRwProperties
individual-lifeform-acquire-descriptor : ground-move-to-descriptor
    weapon-process-state-repository-name AxRwString; track-by-signature AxRwBoolean;
    track-signature-domain AxRwString; min-track-signature AxRwReal
individual-lifeform-launcher-acquire-descriptor : individual-lifeform-acquire-descriptor
warhead-actuator-descriptor : actuator-component-descriptor
    detonate-on-ground-impact AxRwBoolean; detonate-on-water-impact AxRwBoolean;
    detonate-on-entity-impact AxRwBoolean; remove-on-detonation AxRwBoolean; allow-direct-hit AxRwBoolean
cruise-missile-launch-controller-descriptor : component-descriptor
    munition-type AxRwObjectType; munition-name AxRwString; launch-offset AxRwOffsetVector;
    launch-orientation AxRwTaitBryan; initial-speed AxRwReal; min-time-between-launch AxRwReal;
    range-name AxRwString
fixed-wing-fly-into-controller-descriptor : fixed-wing-pilot-controller-descriptor
    direct-fly-elevation-angle AxRwReal; direct-fly-range AxRwReal
aggregate-move-along-controller-descriptor : aggregated-move-to-descriptor
    catchup-factor AxRwReal; slowdown-factor AxRwReal; in-position-tolerance AxRwReal; evaluation-interval AxRwReal;
    generate-routes-with-rounded-corners AxRwBoolean; vertex-spacing-along-rounded-corners AxRwReal;
    ground-clamp AxRwBoolean
aggregate-move-into-formation-controller-descriptor : component-descriptor
    stop-moving-upon-arrival AxRwBoolean; turn-to-heading-upon-arrival AxRwBoolean; ground-clamp AxRwBoolean
occupancy-director-descriptor : component-descriptor
    publish-load-points AxRwBoolean; flip-disembark-body-x AxRwBoolean; flip-disembark-body-y AxRwBoolean
embarkation-descriptor : component-descriptor
    response-timeout AxRwReal; response-retries AxRwInt; stop-at-embarkation-point AxRwBoolean
fixed-wing-landing-descriptor : component-descriptor
    landing-speed-ratio AxRwReal; landing-descent-rate AxRwReal; landing-gear-down-distance AxRwReal;
    publish-approach-route AxRwBoolean; threshold-altitude AxRwReal; approach-start-altitude AxRwReal;
    base-leg-length AxRwReal
fixed-wing-takeoff-descriptor : component-descriptor
    takeoff-distance AxRwReal; takeoff-altitude AxRwReal
aggregate-embarkation-descriptor : embarkation-descriptor
    embark-aggregate AxRwBoolean
auto-aggregate-disaggregate-controller-descriptor : component-descriptor
    transition-time-check AxRwReal
object-sensor-descriptor : component-descriptor
    detect-only-hostile-forces AxRwBoolean; detect-own-force AxRwBoolean; detection-types AxRwObjectTypeList;
    detect-destroyed-objects AxRwBoolean; detection-period AxRwReal; detection-period-variance AxRwReal;
    add-sensor-range-ring AxRwBoolean; wind-degrades-when-above AxRwReal;
    wind-degrades-sensor-performance-until AxRwReal; wind-degrades-sensor-performance-by AxRwReal;
    precipitation-degrades-sensor-performance-by AxRwReal; suppression-degrades-sensor-performance-by AxRwReal;
    sensor-geometry AxRwSpatialFilterContainer
radar-signature-sensor-descriptor : signature-sensor-descriptor
    publish-emitter-system AxRwBoolean; emitter-system AxEmitterSystemEntry; jamming-defense-factor AxRwReal
signature-sensor-descriptor : object-sensor-descriptor
    sensor-domain AxRwString; sensor-offset AxRwOffsetVector; sensor-positional-error AxRwReal;
    sensor-sensitivity AxRwReal; detection-level-determinator AxRwDetectionLevelContainer;
    publish-sensor-field-of-view AxRwBoolean; sensor-field-of-view AxSensorFieldOfViewEntry
passive-sonar-sensor-descriptor : signature-sensor-descriptor
    max-effective-speed AxRwReal; sonar-dip-capable AxRwBoolean; usable-while-retracted AxRwBoolean
active-sonar-sensor-descriptor : passive-sonar-sensor-descriptor
    detection-period AxRwReal; publish-active-sonar-system AxRwBoolean;
    active-sonar-system AxActiveSonarSystemEntry; active-by-default AxRwBoolean
nbc-sensor-descriptor : object-sensor-descriptor
    detect-nuclear AxRwBoolean; range-nuclear AxRwReal; detect-biological AxRwBoolean; range-biological AxRwReal;
    detect-chemical AxRwBoolean; range-chemical AxRwReal
engineering-object-sensor-descriptor : object-sensor-descriptor
    range-engineering-objects AxRwReal; probability-to-detect-concealed AxRwReal
spot-report-generator-controller-descriptor : component-descriptor
    forward-subordinate-reports AxRwBoolean; report-resend-period AxRwReal;
    object-types-to-spot-report AxRwObjectTypeList; send-spot-reports-on-own-force AxRwBoolean;
    send-spot-reports-on-hostile-forces AxRwBoolean; send-spot-reports-on-neutral-forces AxRwBoolean;
    broadcast AxRwBoolean; radio-name AxRwString; send-spot-reports-on-movement-delta AxRwSpotReportDeltaCheckList;
    send-spot-reports-heartbeat-delta AxRwSpotReportDeltaCheckList; send-spot-reports-on-scenario-load AxRwBoolean;
    send-to-front-end-only AxRwBoolean
engagement-report-generator-controller-descriptor : component-descriptor
    forward-subordinate-reports AxRwBoolean; report-resend-period AxRwReal; radio-name AxRwString
air-vehicle-weapon-hold-controller-descriptor : component-descriptor
    min-weapon-fire-altitude AxRwReal
swinging-part-actuator-descriptor : actuator-component-descriptor
    closed-angle AxRwReal; open-angle AxRwReal; swing-axis AxRwString; swing-rate AxRwReal
translatable-part-actuator-descriptor : actuator-component-descriptor
    max-range AxRwReal; min-range AxRwReal; range-change-rate AxRwReal; start-at-lowest-position AxRwBoolean
ground-move-direction-descriptor : component-descriptor
    high-speed-min-pivot-angle AxRwReal; low-speed-min-pivot-angle AxRwReal; pivot-on-turns AxRwBoolean;
    pivot-speed-cutoff AxRwReal
rail-move-controller-descriptor : component-descriptor
    use-turn-smoothing AxRwBoolean; use-acceleration AxRwBoolean; turn-speed AxRwReal; allow-passing AxRwBoolean;
    use-high-fidelity-ground-clamping AxRwBoolean; draw-debug-spline-points AxRwBoolean;
    convoy-follow-tolerance AxRwReal; convoy-follow-speed-factor AxRwReal; rail-look-ahead-distance AxRwReal;
    rail-hit-time-lane-change AxRwReal; passable-object-types AxRwObjectTypeList;
    extra-lanes-each-direction AxRwUnsigned; driving-lane AxRwUnsigned
human-movement-actuator-descriptor : actuator-component-descriptor
    check-terrain-collisions AxRwBoolean; max-upright-terrain-pitch AxRwReal; max-walking-speed AxRwReal;
    soil-to-max-speed-factor-map AxRwSoilSpeedFactorList; constrain-facing-turn-rate AxRwBoolean;
    max-facing-turn-rate AxRwReal
human-move-to-controller-descriptor : component-descriptor
    at-distance AxRwReal; stuck-at-distance AxRwReal; stuck-give-up-time AxRwReal
human-flee-controller-descriptor : component-descriptor
    angle-between-points AxRwReal; flee-from-threshold AxRwReal; at-distance AxRwReal; show-flee-point AxRwBoolean;
    allow-to-flee-past-flee-point AxRwBoolean; flee-cone AxRwReal
human-cover-point-controller-descriptor : component-descriptor
    at-distance AxRwReal; post-spacing AxRwReal; show-cover-point AxRwBoolean; perform-two-passes AxRwBoolean;
    post-spacing-on-second-pass AxRwReal
human-move-along-controller-descriptor : component-descriptor
    at-distance AxRwReal
spot-report-receiver-descriptor : component-descriptor
    spot-report-age-limit AxRwReal; radio-name AxRwString
detonation-controller-descriptor : component-descriptor
    fuse-type AxRwString; detonation-proximity-distance AxRwReal; malfunction-percentage AxRwReal;
    armed AxRwBoolean; object-types-to-detect AxRwObjectTypeList
simple-proximity-sensor-descriptor : component-descriptor
    default-proximity AxRwReal; detect-only-hostile-forces AxRwBoolean; object-types-to-detect AxRwObjectTypeList
launch-smoke-descriptor : component-descriptor
    detonation-type AxRwEntityType; num-smoke-clouds AxRwInt; distance-from-entity AxRwReal;
    inter-cloud-angle AxRwReal; cloud-elevation-angle AxRwReal; resource-name AxRwString;
    simulate-smoke-cloud-objects AxRwBoolean
tactical-smoke-actuator-descriptor : actuator-component-descriptor
    dissipation-time AxRwReal; growth-rate AxRwReal; max-radius AxRwReal
laser-controller-descriptor : component-descriptor
    wave-length AxRwReal; power AxRwReal; designator-prf-lasing-code AxRwInt; range AxRwReal;
    autonomous AxRwBoolean; offset AxRwOffsetVector; integrated-with-launcher AxRwBoolean;
    targeting-control AxTargetSelectionCriteria
laser-detector-descriptor : component-descriptor
laser-guided-launcher-controller-descriptor : component-descriptor
    munition-type AxRwObjectType; munition-name AxRwString; launch-offset AxRwOffsetVector;
    min-time-between-launch AxRwReal; max-angle-off-boresight AxRwReal; designator-code AxRwInt;
    range-name AxRwString
integrated-laser-guided-launcher-controller-descriptor : laser-guided-launcher-controller-descriptor
    targeting-control AxTargetSelectionCriteria
zed-object-data-messenger-descriptor : component-descriptor
    max-send-interval AxRwReal; min-send-interval AxRwReal
global-environment-actuator-descriptor : actuator-component-descriptor
aggregate-model-resolution-descriptor : component-descriptor
    aggregated-systems AxRwStringList; disaggregated-systems AxRwStringList; aggregated-components AxRwStringList;
    disaggregated-components AxRwStringList; allow-aggregate-state-set AxRwBoolean
aggregated-move-to-descriptor : component-descriptor
    at-distance AxRwReal; allow-retrograde-movement AxRwBoolean
terrain-preload-descriptor : component-descriptor
    preload-priority AxRwInt
movement-based-terrain-preload-descriptor : terrain-preload-descriptor
    geometry-type AxRwString; min-preload-distance AxRwReal; max-preload-distance AxRwReal
combat-range-controller-descriptor : component-descriptor
    range-name AxRwString; combat-range AxRwReal; use-aggregate-subordinates AxRwBoolean
rail-path-controller-descriptor : component-descriptor
    path-feature-type AxRwString; publish-paths AxRwBoolean; pathfinder-weight-factors AxRwRealAttributeList;
    allowable-distance AxRwReal; max-search-radius-coefficient AxRwReal; max-search-radius-offset AxRwReal
multiple-hit-damage-actuator-descriptor : damage-adjudication-actuator-descriptor
limit-existence-controller-descriptor : component-descriptor
    duration AxRwReal
fall-from-sky-actuator-descriptor : actuator-component-descriptor
    drag-coefficient AxRwReal; check-for-splashdown AxRwBoolean
launch-expendable-resource-controller-descriptor : component-descriptor
    auto-launch-enabled AxRwBoolean; auto-launch-range AxRwReal; auto-launch-reset-time AxRwReal;
    auto-launch-default-resource AxRwString; auto-launch-number-of-resources AxRwInt;
    auto-launch-resource-interval AxRwReal; counter-measures-select-table-file AxReaderWriterFile;
    counter-measures-select-table AxAmmoSelectTable; projectile-start-speed AxRwReal;
    launcher-offset AxRwOffsetVector; launch-orientation AxRwTaitBryan
missile-distraction-controller-descriptor : component-descriptor
    target-cone-geometry AxRwSpatialFilterContainer
script-enable-controller-descriptor : component-descriptor
    script-ids AxRwNLengthStringVector; script-variables AxRwScriptVariablesList
propulsion-noise-generator-descriptor : component-descriptor
    speed-to-rpm-factor AxRwReal; acceleration-to-rpm-factor AxRwReal; min-speed AxRwReal;
    power-plant-active AxRwBoolean
aggregate-indirect-fire-controller-descriptor : script-enable-controller-descriptor
    weapon-name AxRwString; range AxRwReal; radius AxRwReal; max-sheaf-radius AxRwReal; hit-factor AxRwReal;
    strength-per-attack AxRwInt; seconds-per-attack AxRwReal; ammunition-per-attack AxRwInt;
    damage-category AxRwString; available-postures AxRwString
aggregate-release-bomb-controller-descriptor : script-enable-controller-descriptor
    weapon-name AxRwString; range AxRwReal; radius AxRwReal; max-sheaf-radius AxRwReal; hit-factor AxRwReal;
    strength-per-bomb AxRwInt; seconds-per-attack AxRwReal; bombs-per-attack AxRwInt; damage-category AxRwString;
    available-postures AxRwString; can-be-radar-jammed AxRwBoolean; jamming-defense-factor AxRwReal
aggregate-anti-air-controller-descriptor : aggregate-release-bomb-controller-descriptor
    max-altitude AxRwReal
aggregated-movement-actuator-descriptor : actuator-component-descriptor
    clamp-to-ground AxRwBoolean; retrograde-movement-penalty AxRwReal; engineering-object-query-name AxRwString;
    engineering-object-obstacle-query-name AxRwString; movement-type AxRwString; supply-check-period AxRwReal;
    minimum-airborne-agl AxRwReal; default-agl AxRwReal
nbc-weapon-controller-descriptor : script-enable-controller-descriptor
    nbc-type AxRwString; range AxRwReal; radius AxRwReal; ammunition-per-attack AxRwInt
create-engineering-object-controller-descriptor : script-enable-controller-descriptor
destroy-engineering-object-controller-descriptor : script-enable-controller-descriptor
breach-obstacle-controller-descriptor : create-engineering-object-controller-descriptor
embedded-entities-descriptor : component-descriptor
    use-radio-messaging AxRwBoolean
fixed-wing-gunnery-controller-descriptor : component-descriptor
    max-alignment-angle AxRwReal; entry-altitude AxRwReal; entry-airspeed AxRwReal; dive-angle AxRwReal;
    strafe-range AxRwReal; aa-engage-range AxRwReal; aa-breakoff-range AxRwReal
aim-weapon-controller-descriptor : component-descriptor
    max-aim-azimuth AxRwReal; min-aim-azimuth AxRwReal; aim-tolerance AxRwReal
human-joystick-movement-controller-descriptor : joy-controller-descriptor
    max-turning-rate AxRwReal
human-follow-controller-descriptor : component-descriptor
    distance-replan-threshold AxRwReal; time-replan-threshold AxRwReal; target-lookahead-time AxRwReal;
    destination-smoothing-period AxRwReal
rotary-wing-joy-controller-descriptor : joy-controller-descriptor
    controller-rise-time AxRwReal; yaw-control-feedback-constant AxRwReal; pitch-control-feedback-constant AxRwReal;
    roll-control-feedback-constant AxRwReal
rotary-wing-landing-gear-descriptor : component-descriptor
    landing-gear-altitude AxRwReal
spawn-controller-descriptor : component-descriptor
    sink-point-delete-radius AxRwReal
navigation-preference-descriptor : component-descriptor
    initial-road-preference AxRwString
sensor-gimbal-actuator-descriptor : actuator-component-descriptor
    max-elevation-rate AxRwReal; max-elevation-range AxRwReal; min-elevation-range AxRwReal;
    max-azimuth-rate AxRwReal; max-azimuth-range AxRwReal; min-azimuth-range AxRwReal;
    sensor-offset AxRwOffsetVector; sensor-id AxRwString
sensor-gimbal-controller-descriptor : joy-controller-descriptor
    neutral-azimuth AxRwReal; neutral-elevation AxRwReal; scan-rate AxRwReal; scan-elevation-angle AxRwReal;
    max-scan-azimuth AxRwReal; min-scan-azimuth AxRwReal; max-range AxRwReal; max-zoom-level AxRwReal;
    azimuth-art-part-type AxRwInt; elevation-art-part-type AxRwInt; sensor-id AxRwString
(base-weapon-controller) : component-descriptor
    max-vehicle-speed-to-fire AxRwReal; max-angle-off-boresight AxRwReal; preload-weapon AxRwBoolean;
    load-ammo-time AxRwReal; unload-ammo-time AxRwReal; disabled-by-suppression AxRwBoolean
zed-object-param : -
    bounding-geometry-type AxRwBoundingGeometryType; bounding-volume AxRwBoundingVolume;
    formation AxRwFormationType; default-appearance AxRwAppearance; force AxRwForceType; category AxRwString;
    echelon-level AxRwString; is-organized AxRwBoolean; min-tick-period AxRwReal; min-tick-period-variance AxRwReal;
    dr-algorithm AxRwDeadReckonTypes; navigation-parameters AxRwNavigationParameters;
    dr-thresholds AxRwDeadReckonThresholds; dr-allow-gui-overrides AxRwBoolean; radios AxRadioDescriptorList;
    systems AxComponentSystemDescriptorList; sensors AxComponentDescriptorList;
    controllers AxComponentDescriptorList; actuators AxComponentDescriptorList;
    connections AxConnectionDescriptorList; mass AxRwReal; sensor-signatures AxRwSensorSignatureList;
    engagement-rules AxRwString; resources AxSimResourceManager; state-repository-extension-type AxRwString;
    tasked-by-superior-upon-task-complete AxRwBoolean; under-fire-time AxRwReal; under-fire-distance AxRwReal;
    initial-sector-of-responsibility AxSimSector; task-execution-rules AxReaderWriterFile;
    auto-connections AxRwTemplatedListPtr<AxRwAutoConnection, 1>; parameter-data AxRwProperties;
    state-data AxRwProperties; range-ring-publisher-tick-time AxRwReal; publish-parameter-data AxRwBoolean;
    - AxRwBoolean; display-name AxRwString; display-description AxRwString; ui-filename AxRwString
moving-object-param : zed-object-param
    can-pivot AxRwBoolean; max-pivot-speed AxRwReal; left-support AxRwOffsetVector; right-support AxRwOffsetVector;
    other-support AxRwOffsetVector; max-speed AxRwReal; max-reverse-speed AxRwReal; turning-radius AxRwReal;
    max-slope AxRwReal; ordered-speed AxRwReal; max-acceleration AxRwReal; max-deceleration AxRwReal;
    max-lateral-acceleration AxRwReal; fuel-efficiency AxRwReal; object-geometry-file AxReaderWriterFile;
    use-object-geometry AxRwBoolean; mime-character AxRwMimeCharacterInfo; disaggregation-range AxRwReal;
    using-rail-movement AxRwBoolean; illumination-recalc-time AxRwInt; weather-area-recalc-time AxRwInt
fixed-wing-entity-param : moving-object-param
    min-speed AxRwReal; max-altitude AxRwReal; max-climb-rate AxRwReal; max-yaw-rate AxRwReal;
    max-pitch-rate AxRwReal; max-roll-rate AxRwReal; flaps-deceleration AxRwReal; ordered-ground-speed AxRwReal;
    max-ground-speed AxRwReal; max-ground-stopping-deceleration AxRwReal; ground-turning-radius AxRwReal;
    max-ground-slope AxRwReal; on-ground-tolerance AxRwReal; on-ground AxRwBoolean
rotary-wing-entity-param : moving-object-param
    max-altitude AxRwReal; joystick-control AxRwBoolean; terrain-check AxRwBoolean; max-climb-rate AxRwReal;
    max-yaw-rate AxRwReal; max-pitch-rate AxRwReal; max-roll-rate AxRwReal; max-yaw-acceleration AxRwReal;
    max-pitch-acceleration AxRwReal; max-roll-acceleration AxRwReal; zero-collective-lift-acceleration AxRwReal;
    full-collective-lift-acceleration AxRwReal
ground-vehicle-param : moving-object-param
    soil-list AxSoilList
individual-lifeform-param : ground-vehicle-param
    initial-posture AxRwIndividualLifeFormStateType; initial-weapon-state AxRwIndividualLifeFormWeaponStateType
human-param : moving-object-param
    initial-posture AxRwIndividualLifeFormStateType; initial-weapon-state AxRwIndividualLifeFormWeaponStateType
missile-param : moving-object-param
    range AxRwReal; max-maneuver-gs AxRwReal; fire-and-forget AxRwBoolean; cep-radius AxRwReal;
    transition-angle AxRwReal; proportional-navigation-gain AxRwReal; range-name AxRwString
bomb-param : moving-object-param
    max-range AxRwReal; max-range-altitude AxRwReal; cep-radius AxRwReal
surface-entity-param : moving-object-param
subsurface-entity-param : surface-entity-param
    max-depth AxRwReal
cultural-feature-param : moving-object-param
    gravity-aligned AxRwBoolean
tactical-smoke-param : zed-object-param
    dr-density-threshold AxRwReal; dr-sigma-threshold AxRwReal
global-environment-param : zed-object-param
    send-repository-update-when-time-changed-by-seconds AxRwReal
aggregate-object-param : moving-object-param
    can-have-subordinates AxRwBoolean
AxTargetPriorityEntry : -
    entity-type AxRwEntityType; priority AxRwInt
(resource) : -
    resource-name AxRwString
integer-resource : (resource)
    amount AxRwInt; capacity AxRwInt
real-resource : (resource)
    amount AxRwReal; capacity AxRwReal
munition-resource : integer-resource
    munition AxSimMunition
AxLoadPoint : -
    load-point-name AxRwString; offset AxRwOffsetVector; heading AxRwReal; radius AxRwReal
AxEmbarkationSlotEntry : -
    slot-name AxRwString; offset AxRwOffsetVector; orientation AxRwTaitBryan; object-types AxRwObjectTypeList;
    load-points AxRwNLengthStringVector; slot-exclusions AxRwTemplatedListPtr<AxSlotExclusion, 1>
AxZedSubObjectParameterEntry : -
    object-type AxRwObjectType; offset AxRwOffsetVector; orientation AxRwTaitBryan; attached-part AxRwString;
    parameter-data AxRwProperties
AxFormationTableEntry : -
    formation-type AxRwString; formation-file AxReaderWriterFile; formation AxFormation
AxSlotExclusion : -
    slot-name AxRwString
target-selection-criteria : -
    target-priorities AxTargetPriorityList; max-targets AxRwInt; target-region AxRwSpatialFilterContainer;
    fire-with-spot-report-only AxRwBoolean
AxAggregatedMovementDescriptor_MobilityEntry : -
    terrain-type AxRwString; speed-factor AxRwReal
)";
