#pragma once

#include "AxEnvironment.h"
#include "AxFilename.h"

/// Trees of entity files, each parsed once for all records that are made of it.
namespace AxEntityFiles
{
/// The tree of the file; the same one as before while a record holds that and the file has not changed. Null after a
/// report.
AxEnvironmentPtr tree(AxFilename const& file);
} // namespace AxEntityFiles
