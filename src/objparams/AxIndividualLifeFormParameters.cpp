#include "AxIndividualLifeFormParameters.h"

AxIndividualLifeFormParameters::~AxIndividualLifeFormParameters() = default;
