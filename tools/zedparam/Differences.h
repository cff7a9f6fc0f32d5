#pragma once

#include <string>
#include <vector>

#include "Elements.h"

/// One step on the way from a root to an item, and how to find it again on either side.
struct PathStep
{
    static constexpr std::size_t theNone = static_cast<std::size_t>(-1);

    std::string head;
    std::string label;
    std::size_t index[2] = {theNone, theNone}; ///< among the siblings of its head, on each side
    bool isOnly = true;
};
using ItemPath = std::vector<PathStep>;

/// What tells two trees apart at one place.
struct Difference
{
    enum class What
    {
        Changed,
        Removed, ///< stands on the first side alone
        Added,   ///< stands on the second side alone
        Moved    ///< the elements below stand in another order
    };

    What what = What::Changed;
    ItemPath path;
    Item const* item[2] = {nullptr, nullptr};   ///< on each side, null when it is not there
    Item const* parent[2] = {nullptr, nullptr}; ///< what it stands in or would stand in
    std::string text[2];                        ///< both values in full, empty for what is not there

    /// Labels with "/" between.
    std::string pathText() const;
};

/// All differences in the order of the first tree, those of the second alone behind their siblings. The trees must
/// outlive them. Heads of the roots are not compared.
std::vector<Difference> differencesOf(Item const& a, Item const& b, double tolerance);
