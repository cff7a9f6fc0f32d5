#pragma once

#include "AxDefaultComponentDescriptorFactory.h"
#include "AxDefaultParameterFactory.h"

/// The built-in components and records.
struct Factories
{
    AxDefaultComponentDescriptorFactory components;
    AxDefaultParameterFactory records;
};

/// Those that the library works with; installed by the first call.
Factories& installedFactories();
