#include "AxBombParameters.h"

AxBombParameters::~AxBombParameters() = default;
