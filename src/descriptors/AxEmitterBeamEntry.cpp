#include "AxEmitterBeamEntry.h"

AxEmitterBeamEntry::~AxEmitterBeamEntry() = default;
