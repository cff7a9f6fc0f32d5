#pragma once

#include <memory>
#include <string>
#include <vector>

#include "AxZedObjectParameters.h"

class Database;

using Records = std::vector<std::unique_ptr<AxZedObjectParameters>>;

/// The record in a file of parameter text, or those of the objects in an entity file (all, or the one named `object`),
/// with their types as far as they are known. What they refer to is sought beside the file and in the database, which
/// binds their variables, too. Empty after reports when there is none.
Records readRecords(std::string const& file, std::string const& object, Database const& database);
