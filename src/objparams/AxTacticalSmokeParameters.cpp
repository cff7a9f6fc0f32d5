#include "AxTacticalSmokeParameters.h"

AxTacticalSmokeParameters::~AxTacticalSmokeParameters() = default;
