#pragma once

#include <string>
#include <vector>

/// Where two changes of one text do not go together. The places count in the merged text.
struct MergeConflict
{
    std::string path; ///< of the item, empty for the whole text
    std::string reason;
    unsigned line = 0; ///< of the line of markers that begins it
};

struct MergeResult
{
    std::string text;
    std::vector<MergeConflict> conflicts; ///< in their order
};

struct MergeOptions
{
    std::size_t markerSize = 7;
    std::string ours = "ours";
    std::string theirs = "theirs";
};

/// Brings the changes that lead from `base` to `theirs` into `ours`, item by item: members by their keywords, elements
/// of lists by what tells them apart. Of `ours` only the bytes of the merged items change. Comments are merged with the
/// items that they stand in front of or behind on their line.
///
/// What was changed on both sides in different ways, and whatever is not understood, stands in the merged text twice,
/// between lines of markers.
MergeResult mergeTexts(std::string const& base, std::string const& ours, std::string const& theirs,
                       MergeOptions const& options);
