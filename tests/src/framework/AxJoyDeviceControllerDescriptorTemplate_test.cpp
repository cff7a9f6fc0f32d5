#include "AxJoyDeviceControllerDescriptorTemplate.h"

#include "AxJoyDeviceControllerDescriptor.h"
#include "DescriptorFixture.h"

#include <memory>

namespace
{
using AxJoyDeviceControllerDescriptorTemplateTest = DescriptorFixture;
using Instance = AxJoyDeviceControllerDescriptorTemplate<AxComponentDescriptor>;
} // namespace

TEST_F(AxJoyDeviceControllerDescriptorTemplateTest, IsWrittenAsItsBase)
{
    std::unique_ptr<AxComponentDescriptor> const made(
        create("(stick (component-descriptor-type \"joy-controller-descriptor\") (joystick-device \"stick-1\") "
               "(joystick-controls (throttle (axis 2) (inverted true)) (trigger (button 0))))"));
    auto* const stick = dynamic_cast<Instance*>(made.get());
    ASSERT_TRUE(stick);
    EXPECT_EQ(stick->joystickDevice(), "stick-1");
    EXPECT_EQ(stick->joystickControls().lookup("throttle")->axis(), 2);
    EXPECT_EQ(stick->joystickControls().lookup("trigger")->deadZone(), 0.05);
    std::string const text = made->writtenText();
    EXPECT_NE(text.find("(component-descriptor-type \"component-descriptor\")"), std::string::npos);
    EXPECT_EQ(std::unique_ptr<AxComponentDescriptor>(made->clone(nullptr))->writtenText(), text);

    std::unique_ptr<AxComponentDescriptor> const again(create(text));
    EXPECT_EQ(dynamic_cast<Instance*>(again.get()), nullptr);
    EXPECT_NE(again->writtenText().find("(joystick-device \"stick-1\")"), std::string::npos);
}

TEST_F(AxJoyDeviceControllerDescriptorTemplateTest, NamedClassClonesToTheTemplate)
{
    AxJoyDeviceControllerDescriptor const named("stick", nullptr);
    EXPECT_EQ(named.type(), "joy-controller-descriptor");
    std::unique_ptr<AxComponentDescriptor> const clone(named.clone(nullptr));
    EXPECT_EQ(clone->type(), "component-descriptor");
    EXPECT_NE(dynamic_cast<Instance*>(clone.get()), nullptr);
}
