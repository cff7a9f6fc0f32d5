#pragma once

#include <cstddef>
#include <string_view>
#include <unordered_map>
#include <vector>

/// What stands in long lists by its name, so that one of many is found without going through all.
template <class Node>
class NameIndex
{
public:
    /// Shorter lists are gone through sooner.
    static constexpr std::size_t theShortest = 17;

    /// What has that name in the list, in its order. `forEach` shows all that is in it to `add(name, node)` when the
    /// list is asked for the first time; names and nodes must stay.
    template <class ForEach>
    std::vector<Node*> const& find(void const* list, std::string_view name, ForEach const& forEach)
    {
        auto const [known, isNew] = myLists.try_emplace(list);
        if (isNew)
        {
            forEach([&nodes = known->second](std::string_view its, Node* node) { nodes[its].push_back(node); });
        }
        static std::vector<Node*> const none;
        auto const found = known->second.find(name);
        return found != known->second.end() ? found->second : none;
    }

private:
    std::unordered_map<void const*, std::unordered_map<std::string_view, std::vector<Node*>>> myLists;
};
