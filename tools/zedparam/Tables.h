#pragma once

#include <filesystem>
#include <string>
#include <vector>

class AxReaderWriter;
class CheckedFiles;
class Database;
class Findings;

/// The table files in the table directories beside a database, sorted.
std::vector<std::filesystem::path> tableFiles(Database const& database);

/// Reads a file that holds one table. False, after findings, when it cannot be read.
bool loadTable(std::string const& path, AxReaderWriter& table);

/// An empty table of the kind that the file's extension tells; null for other files.
std::unique_ptr<AxReaderWriter> newTable(std::filesystem::path const& file);

/// Loads a table of the kind that the name tells and checks it. False, after findings, when it cannot be loaded.
bool checkTable(std::filesystem::path const& file, CheckedFiles& files, Findings& findings);

/// Checks each table. Answers how many were loaded, whole or not.
std::size_t checkTables(std::vector<std::filesystem::path> const& tables, CheckedFiles& files, Findings& findings);
