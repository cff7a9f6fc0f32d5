#pragma once

#include <set>
#include <string>
#include <vector>

#include "Source.h"

class AxReaderWriter;
class Findings;
class FindingPlaces;

/// The supplies of a record and its systems, and the components that use them by name.
class Supplies
{
public:
    /// Whether it is a supply, or brings some.
    static bool areToldBy(AxReaderWriter const& record);
    /// To be shown every value of the record, and each record that tells of supplies, with the file and the place where
    /// it stands.
    void note(AxReaderWriter const& rw, std::size_t file, std::vector<SourceStep> const& path);
    /// Reports each use of a supply that nothing has. Nothing is reported when a system could not be read.
    void check(FindingPlaces const& places, Findings& findings) const;

private:
    struct Use
    {
        std::string name;
        std::string component;
        bool isMunition;
        std::size_t file;
        std::vector<SourceStep> path;
    };

    void noteUse(AxReaderWriter const& rw, bool isMunition, std::size_t file, std::vector<SourceStep> const& path);

    std::set<std::string, std::less<>> myResources;
    std::set<std::string, std::less<>> myMunitions;
    std::vector<Use> myUses;
    bool myIsWhole = true;
};
