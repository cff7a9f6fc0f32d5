#include "AxDefaultComponentDescriptorFactory.h"

#include "AxActuatorComponentDescriptor.h"
#include "AxJoyDeviceControllerDescriptorTemplate.h"
#include "AxObjectSensorDescriptor.h"
#include "AxScriptEnableControllerDescriptor.h"

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
    {"actuator-component-descriptor", &AxActuatorComponentDescriptor::creator},
    {"joy-controller-descriptor", &AxJoyDeviceControllerDescriptorTemplate<AxComponentDescriptor>::creator},
    {"object-sensor-descriptor", &AxObjectSensorDescriptor::creator},
    {"script-enable-controller-descriptor", &AxScriptEnableControllerDescriptor::creator},
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
    for (Registration const& row : theRegistrations)
    {
        factory->addCreatorFcn(row.type, row.creator);
    }
}
