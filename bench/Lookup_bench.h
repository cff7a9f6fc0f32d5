#pragma once

#include <string>

/// Registers the look-ups among 1,000, 10,000 and 100,000 generated types, or among those of a file.
void registerLookups(std::string const& typesFile);
