#pragma once

#include <string>

class Findings;

/// Whether a file is a database, by its name or else by how its text begins.
bool isDatabaseFile(std::string const& file);

/// Reads and checks one file that is no database: a record, an entity file, a table, a group of objects, a model set, a
/// collection of records, rules of task execution, else a system definition. A record or entity file that a database
/// beside it or one directory above lists is read as that database reads it.
void checkFile(std::string const& file, Findings& findings);
