#pragma once

#include <string>

#include "AxExport.h"
#include "AxFilename.h"

/// Reads a regular file of at most the limit's size into `out`. On failure `out` is empty and `error` an errno value:
/// EISDIR for a directory, EINVAL for anything else that is no regular file, EFBIG above the limit. Never waits for a
/// pipe or device.
ZEDOBJPARAM_API bool axReadWholeFile(AxFilename const& file, std::string& out, int& error);
