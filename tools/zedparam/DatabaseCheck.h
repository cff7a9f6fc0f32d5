#pragma once

#include <cstddef>
#include <string>

class Findings;

/// What a check of a database went over.
struct Checked
{
    std::size_t entries = 0;
    std::size_t tables = 0;
    double secondsReading = 0.0; ///< of the processor, for the records alone
};

/// The time that the process has had of the processor.
double processorSeconds();

/// Reads and checks the database file, every record, one after the other, and the tables beside the database.
Checked checkDatabase(std::string const& file, Findings& findings);
