#pragma once

#include "AxEnvironment.h"

#include <unordered_map>
#include <utility>
#include <vector>

class AxZedObjectParameters;

/// What stands around the objects of entity files: a record keeps it as `<file>...</file>`, a copy of its file in which
/// an empty object stands for its own and others are left out. Each file is looked through once for all its objects; it
/// must not change meanwhile.
class AxObjectSurroundings
{
public:
    AxObjectSurroundings();
    AxObjectSurroundings(AxObjectSurroundings const&) = delete;
    AxObjectSurroundings& operator=(AxObjectSurroundings const&) = delete;
    ~AxObjectSurroundings();

    /// As `AxZedXmlUtils::keepOthers`.
    void keepWith(AxZedObjectParameters& record, bool isOneOfMany);
    /// Moves what was kept from `others` around the element, if it is the root.
    static void restore(AxEnvironment& env, AxEnvObjectPtr const& element, AxEnvObject& others);

private:
    /// A list that objects stand in.
    struct Level
    {
        AxEnvObjectPtr list;
        bool isNews = false; ///< whether it holds anything else that is no comment
        std::vector<std::pair<std::size_t, AxEnvValuePtr>> others{};
        std::unordered_map<AxEnvValue const*, std::size_t> places{}; ///< of objects and of what holds some
    };

    Level const& levelOf(AxEnvObjectPtr const& list);
    AxEnvObjectPtr copyAround(AxEnvObjectPtr const& list, AxEnvValue const& child, AxEnvObjectPtr const& inner);
    AxEnvObjectPtr fileOf(AxEnvironmentPtr const& env, AxEnvValuePtr const& element);

    std::unordered_map<AxEnvObject const*, Level> myLevels;
};
