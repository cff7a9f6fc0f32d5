#include "AxZedSubObjectParameterEntry.h"

AxZedSubObjectParameterEntry::~AxZedSubObjectParameterEntry() = default;
