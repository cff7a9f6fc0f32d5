#pragma once

#include "AxRadioDescriptor.h"
#include "AxRwTemplatedListPtr.h"

/// Radios, owned, keyed by their names.
using AxRadioDescriptorList = AxRwTemplatedListPtr<AxRadioDescriptor, 1>;
