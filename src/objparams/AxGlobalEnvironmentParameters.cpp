#include "AxGlobalEnvironmentParameters.h"

AxGlobalEnvironmentParameters::~AxGlobalEnvironmentParameters() = default;
