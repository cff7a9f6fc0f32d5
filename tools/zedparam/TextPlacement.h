#pragma once

#include <string>

#include "AxReaderWriter.h"
#include "TextTree.h"

/// Where a new item goes, and what comes around it: a blank, or a line end and the indentation of the neighbours.
struct TextPlacement
{
    std::size_t offset;
    std::string before;
    std::string behind{};

    /// For an item of keyword `name` in `list`, which has members if `members` is not null: behind the last one that
    /// the library would write before it. A comment that ends a line stays with what it follows.
    static TextPlacement find(TextTree const& tree, TextItem list, std::string const& name,
                              AxReaderWriterRegistry const* members);
};

/// The place of a member among all; behind them for what is none.
std::size_t orderOf(AxReaderWriterRegistry const* members, std::string const& name);

/// The bytes to take out with an item: its line end and indentation when it has a line for itself, else the blank
/// before it. What stands behind a comment keeps its line.
struct TextRemoval
{
    std::size_t begin;
    std::size_t end;

    static TextRemoval find(TextTree const& tree, TextItem item);
};

/// Whether a comment stands among the tokens of that range of bytes.
bool holdsComment(TextTree const& tree, std::size_t begin, std::size_t end);
