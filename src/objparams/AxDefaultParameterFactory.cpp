#include "AxDefaultParameterFactory.h"

#include "AxMovingObjectParameters.h"

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
    for (Row const& row : theRows)
    {
        factory->addCreatorFcn(row.name, row.creator);
    }
}
