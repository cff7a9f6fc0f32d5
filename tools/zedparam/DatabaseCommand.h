#pragma once

#include <functional>
#include <string>

class CommandLine;
class Database;

/// Adds the sub-command `name DB [--json]`. `run` answers what the process ends with.
void addDatabaseCommand(CommandLine& line, char const* name, char const* help,
                        int (*run)(std::string const& file, bool asJson));

/// Opens a database, lets `print` print what it wants of it, and answers what the process ends with.
int printDatabase(std::string const& file, std::function<void(Database const&)> const& print);
