#pragma once

#include <string>

#include "DocumentDiff.h"

/// Tells how two databases differ: what their files say besides the entries, entries by object type, the files that
/// both records of an entry name, and the tables beside the databases. Holds one pair of records at a time. False after
/// reports when one cannot be read.
bool compareDatabases(std::string const& a, std::string const& b, DiffOptions const& options, DiffReport& report);
