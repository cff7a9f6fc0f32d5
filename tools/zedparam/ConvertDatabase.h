#pragma once

#include <string>

/// Writes a database anew, beside itself, with each record in a file of its own as parameter text or, if `toEntities`,
/// as an entity file below a data root. Only values that are specified are written. Answers an exit code.
int convertDatabase(std::string const& from, std::string const& to, bool toEntities);
