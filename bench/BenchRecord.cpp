#include "BenchRecord.h"

#include "AxDefaultComponentDescriptorFactory.h"
#include "AxDefaultParameterFactory.h"

void setUpFactories()
{
    AxComponentDescriptor::setFactory(AxDefaultComponentDescriptorFactory::create());
    AxComponentDescriptor::addComponentDescriptorCreatorFcn("bench-component-descriptor", &BenchDescriptor::creator);
    AxZedObjectParameterFactory* records = AxDefaultParameterFactory::create();
    records->addCreatorFcn("bench-parameters", &BenchParameters::creator);
    AxZedObjectParameters::setFactory(records);
}
