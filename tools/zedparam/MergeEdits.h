#pragma once

#include <string>
#include <vector>

#include "MergeSource.h"
#include "TextMerge.h"

/// Changes to a text, made all at once in the end.
class MergeEdits
{
public:
    /// How many there are, to go back to.
    using Mark = std::size_t;

    MergeEdits(MergeSource const& source, MergeOptions const& options);

    void replace(MergeSource::Stretch const& what, std::string_view with);
    /// Both versions of what begins with no blank.
    void conflict(MergeSource::Stretch const& ours, std::string_view theirs, MergeConflict what);

    Mark mark() const { return myEdits.size(); }
    /// Whether anything was put in front of that byte since.
    bool haveAny(Mark since, std::size_t offset) const;
    void goBackTo(Mark mark) { myEdits.resize(mark); }

    MergeResult apply();
    /// The line end that the text uses.
    char const* lineEnd() const { return myLineEnd; }

private:
    struct Edit
    {
        std::size_t begin;
        std::size_t end;
        std::string text;
        bool isConflict;
        MergeConflict what;
    };

    void emit(std::string_view piece, bool endsLine);
    void emitKept(std::size_t end);
    void emitConflict(Edit const& edit);
    std::string adapted(std::string_view text) const;

    MergeSource const& mySource;
    MergeOptions const& myOptions;
    char const* myLineEnd;
    std::vector<Edit> myEdits;

    MergeResult myResult;
    std::size_t myKept = 0;      // of the text, what went into the result or was replaced
    bool myNeedsLineEnd = false; // a comment or marker must not run on
};
