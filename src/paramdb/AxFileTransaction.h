#pragma once

#include "AxFilename.h"

#include <set>
#include <string>
#include <string_view>
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
    /// Renames what was staged; false, with the first errno value, when a file could not be replaced.
    bool commit(int& error);

    /// A name not given out before in this transaction, upper and lower case alike: `file`, or with "-2", "-3", ...
    /// before its extension.
    AxFilename unusedName(AxFilename const& file);

    /// The transaction of the save that is running, null when none is.
    static AxFileTransaction* current();
    static void setCurrent(AxFileTransaction* transaction);

private:
    struct Staged
    {
        std::string temporary;
        std::string target;
    };
    std::vector<Staged> myStaged;
    std::set<std::string> myNames;
};
