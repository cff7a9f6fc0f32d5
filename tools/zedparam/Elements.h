#pragma once

#include <span>
#include <string>
#include <vector>

#include "Item.h"

/// A list inside a list, and what tells it from its siblings.
struct Element
{
    Item const* item = nullptr;
    /// The same for the same element in each of the lists that are held against each other.
    std::string key{};
    /// As a user would call it: "reload-time", "real-resource[fuel]", "position[2]".
    std::string label{};
    std::size_t index = 0;  ///< among the siblings of its head
    bool isOnly = true;     ///< no sibling has its head, in none of the lists
    bool isOrdered = false; ///< its place among the siblings of its head has a meaning
};

/// The lists in each of `parents`, keyed so that what belongs together can be found.
///
/// Where a head stands once in each list, it is the key. Repeated heads are told apart by a member that names the
/// element (an object type, a resource's name, ...), by the number in front (a row's range), or as a whole (a
/// connection). What has nothing of the kind is told apart by its place: what is equal belongs together first, and what
/// stands between is taken pair by pair, against the first of `parents`.
std::vector<std::vector<Element>> elementsOf(std::span<Item const* const> parents, double tolerance);
