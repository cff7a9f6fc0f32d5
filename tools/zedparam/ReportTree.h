#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "AxObjectType.h"

class AxSxpParameterDbEntry;

/// One entry of a database in a report.
struct ReportEntry
{
    static constexpr std::size_t none = static_cast<std::size_t>(-1);

    AxSxpParameterDbEntry* entry = nullptr;
    std::string file; ///< as it is shown
    std::string page;
    std::string title; ///< display name, else name of the record, else of its file
    std::string kind;  ///< type name of the record; empty when it cannot be read
    std::size_t parent = none;
    std::vector<std::size_t> children;
};

/// Sets the parents and children: what is above an entry is the pattern that would answer if the entry were not there.
void growTree(std::vector<ReportEntry>& entries);
