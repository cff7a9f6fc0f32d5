#include "AxMissileParameters.h"

AxMissileParameters::~AxMissileParameters() = default;
