#include "AxRwSpotReportDeltaCheck.h"

AxRwSpotReportDeltaCheck::~AxRwSpotReportDeltaCheck() = default;
