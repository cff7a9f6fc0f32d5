#pragma once

#include "AxFilename.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

/// Several files that are replaced together. Each text is first written to a hidden file beside its target and
/// flushed; `commit` renames them in the order in which they were staged. Without a commit nothing stays behind.
class AxFileTransaction
{
public:
    AxFileTransaction() = default;
    AxFileTransaction(AxFileTransaction const&) = delete;
    AxFileTransaction& operator=(AxFileTransaction const&) = delete;
    ~AxFileTransaction();

    /// False, with `error` an errno value, when the text cannot be written.
    bool stage(AxFilename const& file, std::string_view text, int& error);
    /// Renames what was staged up to the first file that cannot be replaced; false, with its errno value, if there is
    /// one.
    bool commit(int& error);
    /// Whether a text for `file` is staged.
    bool stages(AxFilename const& file) const;

private:
    struct Staged
    {
        std::string temporary;
        std::string target;
    };
    std::vector<Staged> myStaged;
    std::unordered_set<std::string> myTargets;
};
