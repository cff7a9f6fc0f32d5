#pragma once

#include "AxExport.h"

#include <span>
#include <string>
#include <string_view>

class AxlObj;

/// Reports a type name that no creator knows: the diagnostic "unknown-type" at `cell` (null: no place is known), with
/// the nearest of the `known` names as its hint, then exactly `statedLine` on AxWarn.
ZEDOBJPARAM_API void axReportUnknownType(std::string_view type, AxlObj const* cell, std::string const& statedLine,
                                         std::span<std::string_view const> known);
