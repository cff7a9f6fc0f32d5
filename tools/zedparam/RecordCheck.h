#pragma once

#include <string>

class AxReaderWriter;
class AxZedObjectParameters;
class CheckedFiles;
class Findings;

/// Whether all is known that may bind a variable of a record, or a database may bind more.
enum class Variables
{
    AllKnown,
    OwnKnown
};

/// Reports what is odd in a record that was read from a file, and in what its files hold: values outside their ranges,
/// wires, ports, supplies and variables that lead nowhere, rows of tables.
void checkRecord(std::string const& file, AxZedObjectParameters& record, Variables variables, CheckedFiles& files,
                 Findings& findings);

/// The same of what another file holds, such as a table or a system, as far as it can be told without a record.
void checkContent(std::string const& file, AxReaderWriter& content, CheckedFiles& files, Findings& findings);
