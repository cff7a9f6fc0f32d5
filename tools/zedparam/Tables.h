#pragma once

#include <filesystem>
#include <vector>

class Database;
class Findings;

/// The table files in the table directories beside a database, sorted.
std::vector<std::filesystem::path> tableFiles(Database const& database);

/// Loads each table whose kind is known by its extension and checks its rows. Answers how many were loaded, whole or
/// not.
std::size_t checkTables(std::vector<std::filesystem::path> const& files, Findings& findings);
