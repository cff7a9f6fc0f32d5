#include "AxEmitterSystemEntry.h"

AxEmitterSystemEntry::~AxEmitterSystemEntry() = default;
