#pragma once

#include <list>
#include <string>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

#include "Source.h"

/// What a check knows from one file to the next, so that what many records share is looked at once.
class CheckedFiles
{
public:
    using Names = std::unordered_set<std::string>;

    /// Notes that something names the file; true the first time.
    bool enter(std::string const& file) { return !std::exchange(myFiles[file].isNamed, true); }
    /// True the first time that the tables in a file are to be checked.
    bool enterRows(std::string const& file) { return !std::exchange(myFiles[file].areRowsChecked, true); }
    /// Shows `visit` each file that something names.
    template <class Visit>
    void forEachNamed(Visit const& visit) const
    {
        for (auto const& [file, state] : myFiles)
        {
            if (state.isNamed)
            {
                visit(file);
            }
        }
    }

    /// The text of a file as cells; valid until a few others were asked for.
    Source const& source(std::string const& file);

    /// The bytes of a file, none when it cannot be read; valid until those of another file are asked for.
    std::string const& text(std::string const& file);

    /// The variables that a file refers to, kept for the next who asks.
    Names const& references(std::string const& file);
    /// The same of a file that nobody asks for again.
    Names referencesOnce(std::string const& file);

private:
    struct State
    {
        bool isNamed = false;
        bool areRowsChecked = false;
        bool isSearched = false;
        Names references{};
    };
    std::unordered_map<std::string, State> myFiles;
    std::pair<std::string, std::string> myText;          // of the file asked for last
    std::list<std::pair<std::string, Source>> mySources; // the one asked for last in front
};

/// The variables that a text refers to by `$name` or `$(name)`, but for those in comments.
CheckedFiles::Names referencesIn(std::string_view text, bool isXml);
