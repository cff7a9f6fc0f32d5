#pragma once

#include <map>
#include <string>
#include <vector>

class AxReaderWriter;

/// Gathers the steps by which a path goes on in one list.
class PathSteps
{
public:
    /// An item that is there, by its head and its own name; `member` is what reads it, null for an element.
    void add(std::string const& head, std::string const& own, AxReaderWriter const* member, bool leadsOn);
    /// Those, and the members of `rw` that are not there, unless it is null.
    std::vector<std::string> all(AxReaderWriter const* rw) const;

private:
    struct Item
    {
        std::string head;
        std::string own; ///< empty for a member
        bool isMember;
        bool leadsOn;
    };
    std::vector<Item> myItems;
    std::map<std::string, std::size_t> myHeads; // elements by their heads
    std::map<std::string, std::size_t> myOwnNames;
};
