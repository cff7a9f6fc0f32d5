#pragma once

#include <string_view>

#include "AxExport.h"
#include "AxFilename.h"

/// Makes `text` the content of a file: writes it beside the file, flushes it to the disk and renames. On failure the
/// old file is as it was, nothing is left beside it, and `error` is an errno value. A link is followed; access rights
/// of an old file stay.
ZEDOBJPARAM_API bool axReplaceFile(AxFilename const& file, std::string_view text, int& error);
