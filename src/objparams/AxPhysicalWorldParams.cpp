#include "AxPhysicalWorldParams.h"

AxPhysicalWorldParams::~AxPhysicalWorldParams() = default;
