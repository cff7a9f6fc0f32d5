#pragma once

#include "AxRwEnum.h"
#include "AxSimBoundingGeometry.h"

/// How the space that an object takes up is described, as a number.
using AxRwBoundingGeometryType = AxRwEnum<AxSimBoundingGeometry::AxSimBoundingGeometryType>;
