#include "AxObjectSensorDescriptor.h"

#include "AxScriptEnableControllerDescriptor.h"
#include "DescriptorFixture.h"

#include <memory>

using AxObjectSensorDescriptorTest = DescriptorFixture;

TEST_F(AxObjectSensorDescriptorTest, TicksEveryTwoSecondsWithoutSayingSo)
{
    AxObjectSensorDescriptor sensor("eye", nullptr);
    EXPECT_EQ(sensor.minTickPeriod(), 2.0);
    EXPECT_FALSE(sensor.tickPeriodUsesRealTime());
    EXPECT_TRUE(sensor.addSensorRangeRing());
    EXPECT_FALSE(sensor.registry()->lookup("min-tick-period")->valueSpecified());
    std::unique_ptr<AxComponentDescriptor> const clone(sensor.clone(nullptr));
    EXPECT_EQ(clone->minTickPeriod(), 2.0);
}

TEST_F(AxObjectSensorDescriptorTest, ReadsItsOwnKeywordsAndThoseOfItsBase)
{
    char const* text = "(eye\n"
                       "  (component-descriptor-type \"object-sensor-descriptor\")\n"
                       "  (is-enabled true)\n"
                       "  (create-component true)\n"
                       "  (detect-only-hostile-forces true)\n"
                       "  (detection-types (1 1 1 1 -1 -1 -1 -1))\n"
                       "  (detection-period 0.5)\n"
                       "  (sensor-geometry\n"
                       "    (sphere-filter\n"
                       "      (max-range 300.0))))\n";
    std::unique_ptr<AxComponentDescriptor> const made(create(text));
    auto* const sensor = dynamic_cast<AxObjectSensorDescriptor*>(made.get());
    ASSERT_TRUE(sensor);
    EXPECT_TRUE(sensor->detectOnlyHostileForces());
    EXPECT_EQ(sensor->detectionPeriod(), 0.5);
    EXPECT_EQ(sensor->sensorGeometry().maxRange(), 300.0);
    EXPECT_EQ(sensor->writtenText(), text);
    std::unique_ptr<AxComponentDescriptor> const clone(sensor->clone(nullptr));
    EXPECT_EQ(clone->writtenText(), text);
}

TEST(AxScriptEnableControllerDescriptor, HoldsScriptsAndTheirVariables)
{
    AxScriptEnableControllerDescriptor controller("script", nullptr);
    readFrom(controller, "(script (component-descriptor-type \"script-enable-controller-descriptor\") "
                         "(script-ids \"patrol\" \"attack\") (script-variables (speed AxRwReal 4.5)))");
    EXPECT_TRUE(controller.scriptIds().contains("attack"));
    EXPECT_TRUE(controller.scriptVariables().find("speed"));
    std::unique_ptr<AxComponentDescriptor> const clone(controller.clone(nullptr));
    EXPECT_EQ(*clone, controller);
    EXPECT_EQ(clone->writtenText(), controller.writtenText());
}
