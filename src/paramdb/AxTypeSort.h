#pragma once

#include "AxListItem.h"
#include "AxObjectType.h"

#include <vector>

/// The type of an item's data; null when it has none.
using AxTypeOf = AxObjectType const* (*)(void const* data);

/// Puts items in ascending order of their types, which all have; those of equal type stay as they stand. In one pass
/// for each byte in which the types differ; longer without the memory that this takes.
void axSortByType(std::vector<AxListItem*>& items, AxTypeOf typeOf);
