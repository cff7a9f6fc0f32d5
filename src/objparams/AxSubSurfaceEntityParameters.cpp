#include "AxSubSurfaceEntityParameters.h"

AxSubSurfaceEntityParameters::~AxSubSurfaceEntityParameters() = default;
