#pragma once

#include "AxFilename.h"

#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

/// Several files that are replaced together. Each text is first written to a hidden file beside its target and
/// flushed; `commit` renames them in the order in which they were staged. Without a commit nothing stays behind. A link
/// is followed; access rights of an old file stay, and one that may not be written is refused.
class AxFileTransaction
{
public:
    AxFileTransaction() = default;
    AxFileTransaction(AxFileTransaction const&) = delete;
    AxFileTransaction& operator=(AxFileTransaction const&) = delete;
    ~AxFileTransaction();

    /// False, with `error` an errno value, when the text cannot be written.
    bool stage(AxFilename const& file, std::string_view text, int& error);
    /// Puts what was staged in place. False, with an errno value, when a file cannot be replaced: those before it get
    /// their old content back, where the file system can exchange two files.
    bool commit(int& error);
    /// Whether a text for `file` is staged.
    bool stages(AxFilename const& file) const;

private:
    enum class Way
    {
        New,      ///< there was no file
        Exchange, ///< the old file is kept under the temporary name until all are replaced
        Over      ///< the old file is gone at once
    };
    struct Staged
    {
        std::string temporary;
        std::string target;
        Way way;
    };

    static bool replace(Staged& file);
    static void takeBack(Staged const& file);
    void removeTemporaries();

    std::vector<Staged> myStaged;
    std::unordered_set<std::string> myTargets;
};
