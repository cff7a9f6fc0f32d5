#include "AxDefaultComponentDescriptorFactory.h"

#include "AxComponentDescriptorFactoryEntry.h"
#include "DescriptorFixture.h"

#include <iterator>
#include <map>
#include <memory>

namespace
{
using AxDefaultComponentDescriptorFactoryTest = DescriptorFixture;

// Every type name of the catalogue in the order of registration; the human gun is registered twice and stays first.
constexpr char const* theTypes[] = {
    "component-descriptor",
    "event-trigger-controller-descriptor",
    "actuator-component-descriptor",
    "automotive-component-descriptor",
    "turret-component-descriptor",
    "turret-scan-component-descriptor",
    "turret-acquire-controller-descriptor",
    "turret-return-to-heading-controller-descriptor",
    "obstruction-sensor-descriptor",
    "ballistic-gun-ctlr-descriptor",
    "elevating-ballistic-gun-ctlr-descriptor",
    "ballistic-gun-descriptor",
    "human-gun-actuator-descriptor",
    "fix-wing-component-descriptor",
    "rotary-wing-component-descriptor",
    "surface-entity-component-descriptor",
    "damage-adjudication-actuator-descriptor",
    "suppression-actuator-descriptor",
    "under-fire-determination-sensor-descriptor",
    "launcher-actuator-descriptor",
    "indirect-fire-actuator-descriptor",
    "weapon-actuator-descriptor",
    "weapon-controller-descriptor",
    "azimuth-mount-descriptor",
    "fixed-wing-default-controller-descriptor",
    "fixed-wing-pilot-controller-descriptor",
    "fixed-wing-follow-entity-controller-descriptor",
    "rot-wing-pilot-controller-descriptor",
    "rotary-wing-task-descriptor",
    "rotary-wing-route-task-descriptor",
    "surface-entity-pilot-controller-descriptor",
    "surface-entity-route-pilot-controller-descriptor",
    "elevation-mount-descriptor",
    "ground-collision-avoidance-descriptor",
    "ground-move-to-descriptor",
    "ground-follow-entity-descriptor",
    "indirect-fire-controller-descriptor",
    "rot-wing-collision-avoidance-controller-descriptor",
    "formation-controller-descriptor",
    "joy-controller-descriptor",
    "ballistic-gun-joy-ctrl-descriptor",
    "convoy-descriptor",
    "iff-controller-descriptor",
    "emitter-component-descriptor",
    "jammer-emitter-descriptor",
    "resupply-controller-descriptor",
    "individual-lifeform-acquire-descriptor",
    "individual-lifeform-launcher-acquire-descriptor",
    "warhead-actuator-descriptor",
    "cruise-missile-launch-controller-descriptor",
    "fixed-wing-fly-into-controller-descriptor",
    "aggregate-move-along-controller-descriptor",
    "aggregate-move-into-formation-controller-descriptor",
    "occupancy-director-descriptor",
    "embarkation-descriptor",
    "fixed-wing-landing-descriptor",
    "fixed-wing-takeoff-descriptor",
    "aggregate-embarkation-descriptor",
    "auto-aggregate-disaggregate-controller-descriptor",
    "object-sensor-descriptor",
    "radar-signature-sensor-descriptor",
    "signature-sensor-descriptor",
    "passive-sonar-sensor-descriptor",
    "active-sonar-sensor-descriptor",
    "nbc-sensor-descriptor",
    "engineering-object-sensor-descriptor",
    "spot-report-generator-controller-descriptor",
    "engagement-report-generator-controller-descriptor",
    "air-vehicle-weapon-hold-controller-descriptor",
    "swinging-part-actuator-descriptor",
    "translatable-part-actuator-descriptor",
    "ground-move-direction-descriptor",
    "rail-move-controller-descriptor",
    "human-movement-actuator-descriptor",
    "human-move-to-controller-descriptor",
    "human-flee-controller-descriptor",
    "human-cover-point-controller-descriptor",
    "human-move-along-controller-descriptor",
    "spot-report-receiver-descriptor",
    "detonation-controller-descriptor",
    "simple-proximity-sensor-descriptor",
    "launch-smoke-descriptor",
    "tactical-smoke-actuator-descriptor",
    "laser-controller-descriptor",
    "laser-detector-descriptor",
    "laser-guided-launcher-controller-descriptor",
    "integrated-laser-guided-launcher-controller-descriptor",
    "zed-object-data-messenger-descriptor",
    "global-environment-actuator-descriptor",
    "aggregate-model-resolution-descriptor",
    "aggregated-move-to-descriptor",
    "terrain-preload-descriptor",
    "movement-based-terrain-preload-descriptor",
    "combat-range-controller-descriptor",
    "rail-path-controller-descriptor",
    "multiple-hit-damage-actuator-descriptor",
    "limit-existence-controller-descriptor",
    "fall-from-sky-actuator-descriptor",
    "launch-expendable-resource-controller-descriptor",
    "missile-distraction-controller-descriptor",
    "script-enable-controller-descriptor",
    "propulsion-noise-generator-descriptor",
    "aggregate-indirect-fire-controller-descriptor",
    "aggregate-release-bomb-controller-descriptor",
    "aggregate-anti-air-controller-descriptor",
    "aggregated-movement-actuator-descriptor",
    "nbc-weapon-controller-descriptor",
    "create-engineering-object-controller-descriptor",
    "destroy-engineering-object-controller-descriptor",
    "breach-obstacle-controller-descriptor",
    "embedded-entities-descriptor",
    "fixed-wing-gunnery-controller-descriptor",
    "aim-weapon-controller-descriptor",
    "human-joystick-movement-controller-descriptor",
    "human-follow-controller-descriptor",
    "rotary-wing-joy-controller-descriptor",
    "rotary-wing-landing-gear-descriptor",
    "spawn-controller-descriptor",
    "navigation-preference-descriptor",
    "sensor-gimbal-actuator-descriptor",
    "sensor-gimbal-controller-descriptor",
};
} // namespace

TEST_F(AxDefaultComponentDescriptorFactoryTest, EntersTheCatalogueInItsOrder)
{
    std::vector<std::string> entered;
    for (AxListItem const* item = factory.first(); item; item = item->next())
    {
        entered.push_back(static_cast<AxComponentDescriptorFactoryEntry*>(item->data())->typeToCreate().string());
    }
    EXPECT_EQ(entered, std::vector<std::string>(std::begin(theTypes), std::end(theTypes)));
}

TEST_F(AxDefaultComponentDescriptorFactoryTest, FreshComponentsWriteOnlyWhatIsMarked)
{
    for (char const* type : theTypes)
    {
        std::unique_ptr<AxComponentDescriptor> const made(AxComponentDescriptor::createComponentDescriptor(type));
        ASSERT_TRUE(made) << type;
        made->setName("one");
        EXPECT_EQ(made->writtenText(), "(one\n  (component-descriptor-type \"" + made->type().string() +
                                           "\")\n  (is-enabled true)\n  (create-component true))\n");
    }
}

TEST_F(AxDefaultComponentDescriptorFactoryTest, EveryTypeButTheJoystickTemplatesWritesItsName)
{
    std::map<std::string, std::string> const exceptions = {
        {"joy-controller-descriptor", "component-descriptor"},
        {"ballistic-gun-joy-ctrl-descriptor", "ballistic-gun-ctlr-descriptor"},
    };
    for (char const* type : theTypes)
    {
        std::unique_ptr<AxComponentDescriptor> const made(factory.createComponentDescriptor(type));
        auto const exception = exceptions.find(type);
        EXPECT_EQ(made->type(), AxString(exception == exceptions.end() ? type : exception->second));
    }
}
