#include "AxSlotExclusion.h"

AxSlotExclusion::~AxSlotExclusion() = default;
