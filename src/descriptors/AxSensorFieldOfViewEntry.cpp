#include "AxSensorFieldOfViewEntry.h"

AxSensorFieldOfViewEntry::~AxSensorFieldOfViewEntry() = default;
