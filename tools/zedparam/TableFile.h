#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "AxRwList.h"
#include "Source.h"

enum class TableKind
{
    Probabilities, ///< hit or detection, by object type and range
    Damage,        ///< by surface, angle of incidence and range
    Munitions,     ///< damage by munition first
    Ammunition,    ///< munitions by target type
    Priorities     ///< of targets by type
};

/// "a hit or detection table" and so on.
char const* nameOf(TableKind kind);

/// A table and the text that it was read from: a file of its own, or a list inside a record or system.
class TableFile
{
public:
    /// Null, after a line or findings, when there is no table, or several and none has that name.
    static std::unique_ptr<TableFile> open(std::string const& file, std::string const& name = {});

    TableKind kind() const { return myKind; }
    std::string const& file() const { return myFile; }
    /// Its head word, behind those of the lists around it.
    std::string const& name() const { return myName; }
    /// The class follows from the kind.
    template <class Table>
    Table& as() const
    {
        return static_cast<Table&>(*myTable);
    }
    /// The list, whose items are the table's elements.
    AxlObj const& text() const { return *myText; }
    /// Whether it is the one that a user calls so; any is for an empty name. A file that is one table as a whole may be
    /// opened by any name.
    bool isNamed(std::string_view name) const;

private:
    TableFile(std::string const& file) : myFile(file), mySource(file) {}

    std::string myFile;
    Source mySource;
    AxlObj const* myText = nullptr;
    TableKind myKind = TableKind::Probabilities;
    std::string myName;
    std::unique_ptr<AxRwList> myTable;
};

/// The items of a table's text that became its elements, in their order. Of elements with a range determinant only
/// those whose determinant is known become one.
std::vector<AxlObj const*> elementTexts(AxlObj const& table, bool haveDeterminants);
/// The list of rows or polynomials, and its head, of an element with a range determinant; a nil cell when there is
/// none.
AxlObj const& determinantText(AxlObj const& element);
/// The first item with that head; a nil cell when there is none.
AxlObj const& itemText(AxlObj const& list, std::string_view head);
