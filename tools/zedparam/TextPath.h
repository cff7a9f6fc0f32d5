#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "TextReading.h"
#include "TextTree.h"

/// How far a path such as "sensors/radar/detection-period" leads into a text. Each name is that of an item, of an
/// element of a list, or the object type of an entry; where no item is headed so, what an element calls itself. Of
/// items that share a name `[2]` picks the second, and `["fuel"]` the one that calls itself so. Of repeated keywords
/// the last counts, as in reading.
struct TextPath
{
    std::string text;
    std::vector<std::string> names;  ///< without `[2]` and `["fuel"]`
    std::vector<TextItem> lists;     ///< the file's own, then one for each name that leads on
    AxReaderWriter* rw = nullptr;    ///< what reads the last of them; null when the library does not know it
    AxReaderWriter* outer = nullptr; ///< what reads the one before
    /// Why the path cannot be followed at all; empty when it can, or only names what is not there.
    std::string fault;
    std::string hint; ///< what to do about it

    bool isWhole() const { return lists.size() == names.size() + 1; }
    std::string const& missing() const { return names[lists.size() - 1]; }

    static TextPath follow(std::string_view path, TextTree const& tree, TextReading& reading);
};

/// The members that can stand in a list which `rw` reads; null when there are none.
AxReaderWriterRegistry const* membersIn(AxReaderWriter const* rw);

/// The member of that keyword or alias; null when there is none.
AxReaderWriter* memberOf(AxReaderWriter const* rw, std::string_view name);

/// What can stand in a list: keywords of its members, then heads and own names of the items that are there.
std::vector<std::string> namesIn(TextItem list, AxReaderWriter const* rw);
