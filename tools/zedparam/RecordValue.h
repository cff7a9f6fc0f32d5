#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "AxlObj.h"

class AxReaderWriter;
class RecordWalk;

bool hasMembers(AxReaderWriter const& rw);
/// Whether the object is a value rather than a record or a list. A file member is the name of its file, unless its
/// content stands in place of the name.
bool isLeaf(AxReaderWriter const& rw);
/// False for what is no number.
bool numberIn(AxReaderWriter const& rw, double& value);
/// What the object itself writes in front of its members, as a list of items; a value writes nothing else.
AxlObjPtr ownItems(AxReaderWriter& rw);

/// One number or text out of a value.
struct Atom
{
    bool isNumber = false;
    double number = 0.0;
    std::string text; ///< without quotes; of a number its spelling
};

Atom atomOf(double number);
/// Appends what the value at which the walk stands is made of: one atom, or those of a vector or a list of words one by
/// one. Nothing for records and lists.
void appendAtoms(RecordWalk const& at, std::vector<Atom>& atoms);
/// The unit of that value; false when nobody told one, empty for a value that has none.
bool unitOf(RecordWalk const& at, std::string& unit);
/// The same of a member and the keyword that it was come to by.
bool unitOf(AxReaderWriter const& rw, std::string_view keyword, std::string& unit);
/// The value at which the walk stands as in parameter text; empty for records and lists.
std::string valueText(RecordWalk const& at);
