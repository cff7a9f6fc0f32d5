#include "AxRadioDescriptor.h"

AxRadioDescriptor::~AxRadioDescriptor() = default;
