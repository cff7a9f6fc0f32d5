#pragma once

#include <filesystem>
#include <string>
#include <vector>

class AxReaderWriter;
class Database;
class Findings;

/// The table files in the table directories beside a database, sorted.
std::vector<std::filesystem::path> tableFiles(Database const& database);

/// Reads a file that holds one table. False, after findings, when it cannot be read.
bool loadTable(std::string const& path, AxReaderWriter& table);

/// Loads each table whose kind is known by its extension and checks its rows. Answers how many were loaded, whole or
/// not.
std::size_t checkTables(std::vector<std::filesystem::path> const& files, Findings& findings);
