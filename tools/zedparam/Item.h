#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "AxEnvObject.h"
#include "TextTree.h"

/// One expression of a text: an atom, or a list with the word it begins with. Comments and layout take no part.
struct Item
{
    enum class Kind
    {
        Word,
        String,
        Number,
        List
    };

    Kind kind = Kind::List;
    std::string text{};        ///< of an atom as it is written; of a list what its head says, empty when it has none
    double number = 0.0;       ///< of a number
    TextTree::Place place{};   ///< where it begins
    TextItem source{};         ///< null for a part of an XML file
    std::vector<Item> items{}; ///< of a list, all but the head

    bool isList() const { return kind == Kind::List; }
    /// The first list of that head; null when there is none.
    Item const* find(std::string_view head) const;
    bool hasLists() const;
    /// Whether all atoms stand in front of all lists.
    bool isRegular() const;
    /// The atoms side by side.
    std::string atoms() const;
    /// All of it, on one line.
    std::string written() const;
};

Item itemOf(TextItem const& source);
/// An element as a list headed by its name, else its tag: attributes and children are lists in it. An attribute of
/// numbers holds them as numbers, any other one text.
Item itemOf(AxEnvObject const& element);

/// Equal but for layout; numbers that differ by no more than `tolerance` times the larger are equal. Heads are not
/// compared.
bool isSame(Item const& a, Item const& b, double tolerance);
bool isSameAtom(Item const& a, Item const& b, double tolerance);
/// Whether the atoms of both are the same.
bool hasSameAtoms(Item const& a, Item const& b, double tolerance);
