#pragma once

#include "AxRwTemplatedListPtr.h"
#include "AxSimArtPartDescriptor.h"

/// Articulated parts, owned, keyed by their names.
using AxSimArtPartDescriptorList = AxRwTemplatedListPtr<AxSimArtPartDescriptor, 1>;
