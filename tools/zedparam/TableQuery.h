#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "AxPrbRangeTableEntry.h"
#include "AxSimMunitionList.h"
#include "TableFile.h"

/// What a table is asked. Which parts a table needs depends on its kind.
struct TableQuestion
{
    std::optional<AxEntityType> type;
    std::optional<AxSimMunition> munition;
    std::optional<std::string> surface;
    std::optional<double> angle; ///< degrees
    std::optional<double> range; ///< metres
    bool isCollateral = false;   ///< what a detonation nearby does, rather than a hit
};

/// A part of the table on the way to the answer, from the outside in.
struct TableStep
{
    std::string part;  ///< "entry", "munition", "surface", "angle" or "row"
    std::string value; ///< such as its type
    std::string words; ///< to be read behind the value
    std::string match; ///< "exact", "pattern" or nothing
    std::vector<std::pair<std::string, double>> numbers;
    std::string file;
    unsigned line = 0;
    unsigned column = 0;
};

struct TableAnswer
{
    std::vector<TableStep> steps;
    std::string miss; ///< why nothing answers; empty when something does
    AxPrbRangeTableEntry outcomes;
    AxSimMunitionList munitions{"munitions", nullptr};
    std::optional<int> priority;
};

/// The options that a question for a table of that kind lacks, such as "--type and --range"; empty when it has all.
std::string missingOptions(TableKind kind, TableQuestion const& question);
/// Those that a table of that kind has no use for.
std::string idleOptions(TableKind kind, TableQuestion const& question);

/// `question` has what the table needs.
TableAnswer askTable(TableFile const& table, TableQuestion const& question);
