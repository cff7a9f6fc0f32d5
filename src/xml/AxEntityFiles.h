#pragma once

#include "AxEnvironment.h"
#include "AxFilename.h"
#include "AxObjectIndex.h"

#include <cstdio>

/// Trees of entity files, each parsed once for all records that are made of it.
namespace AxEntityFiles
{
struct Tree
{
    AxEnvironmentPtr environment{};
    boost::shared_ptr<AxObjectIndex> objects{};
};

/// The tree of a file that was opened by this name; the same one as before while a record holds that and the file has
/// not changed. Null after a report.
Tree tree(std::FILE* file, AxFilename const& name);
} // namespace AxEntityFiles
