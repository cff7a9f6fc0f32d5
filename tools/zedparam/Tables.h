#pragma once

#include <filesystem>
#include <vector>

class Database;
class Findings;

/// The table files in the table directories beside a database, sorted.
std::vector<std::filesystem::path> tableFiles(Database const& database);

/// Loads each table whose kind is known by its extension and reports probabilities outside 0 to 1. Answers how many
/// were loaded, whole or not.
std::size_t checkTables(std::vector<std::filesystem::path> const& files, Findings& findings);
