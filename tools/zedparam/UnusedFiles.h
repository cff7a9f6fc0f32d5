#pragma once

#include <filesystem>
#include <string>
#include <vector>

class CheckedFiles;
class Database;
class Findings;

/// Reports the files that look as if they belonged to the database and that nothing in it names: records in its record
/// directory; tables in the table directories, and what stands beside a named file and ends as it does, unless there
/// are other databases in the directory that may use them. `unopened` are files of entries, named but not read.
void checkUnusedFiles(std::string const& databaseFile, Database const& database,
                      std::vector<std::filesystem::path> const& tables,
                      std::vector<std::filesystem::path> const& unopened, CheckedFiles const& files,
                      Findings& findings);
