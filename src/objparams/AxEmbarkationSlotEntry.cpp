#include "AxEmbarkationSlotEntry.h"

AxEmbarkationSlotEntry::~AxEmbarkationSlotEntry() = default;
