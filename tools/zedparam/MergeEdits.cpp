#include "MergeEdits.h"

#include <algorithm>
#include <utility>

MergeEdits::MergeEdits(MergeSource const& source, MergeOptions const& options)
    : mySource(source), myOptions(options), myLineEnd(source.text().find("\r\n") != std::string::npos ? "\r\n" : "\n")
{
}

void MergeEdits::replace(MergeSource::Stretch const& what, std::string_view with)
{
    myEdits.push_back({what.begin, what.end, adapted(with), false, {}});
}

void MergeEdits::conflict(MergeSource::Stretch const& ours, std::string_view theirs, MergeConflict what)
{
    myEdits.push_back({ours.begin, ours.end, adapted(theirs), true, std::move(what)});
}

bool MergeEdits::haveAny(Mark since, std::size_t offset) const
{
    return std::any_of(myEdits.begin() + static_cast<std::ptrdiff_t>(since), myEdits.end(),
                       [offset](Edit const& edit) { return edit.begin == offset && edit.end == offset; });
}

/// With the line ends of the text that it goes into.
std::string MergeEdits::adapted(std::string_view text) const
{
    std::string out;
    for (char const c : text)
    {
        if (c == '\n')
        {
            out += myLineEnd;
        }
        else if (c != '\r')
        {
            out += c;
        }
    }
    return out;
}

void MergeEdits::emit(std::string_view piece, bool endsLine)
{
    if (piece.empty())
    {
        return;
    }
    if (myNeedsLineEnd && !piece.starts_with('\n') && !piece.starts_with("\r\n"))
    {
        myResult.text += myLineEnd;
    }
    myResult.text += piece;
    myNeedsLineEnd = endsLine;
}

void MergeEdits::emitKept(std::size_t end)
{
    if (end > myKept)
    {
        emit(mySource.at({myKept, end}), mySource.isBehindLineComment(end));
        myKept = end;
    }
}

void MergeEdits::emitConflict(Edit const& edit)
{
    std::string& out = myResult.text;
    std::size_t const lineStart = out.find_last_of('\n') + 1; // 0 on the first line
    std::string indent = out.substr(lineStart);
    if (indent.find_first_not_of(" \t") == std::string::npos)
    {
        out.resize(lineStart);
    }
    else
    {
        out += myLineEnd;
        indent.clear();
    }
    myNeedsLineEnd = false;
    MergeConflict conflict = edit.what;
    conflict.line = static_cast<unsigned>(std::ranges::count(out, '\n')) + 1;
    myResult.conflicts.push_back(std::move(conflict));

    auto const marker = [&](char c, std::string const& label)
    { return std::string(myOptions.markerSize, c) + (label.empty() ? "" : " ") + label; };
    auto const version = [&](std::string_view text)
    { return text.empty() ? std::string() : indent + std::string(text) + (text.ends_with('\n') ? "" : myLineEnd); };
    out += marker('<', myOptions.ours) + myLineEnd;
    out += version(mySource.at({edit.begin, edit.end}));
    out += marker('=', {}) + myLineEnd;
    out += version(edit.text);
    out += marker('>', myOptions.theirs);
    myNeedsLineEnd = true;
}

MergeResult MergeEdits::apply()
{
    // What is put in front of a byte comes before what replaces it.
    std::ranges::stable_sort(myEdits, {},
                             [](Edit const& edit) { return std::pair(edit.begin, edit.end != edit.begin); });
    for (Edit const& edit : myEdits)
    {
        emitKept(edit.begin);
        if (edit.isConflict)
        {
            emitConflict(edit);
        }
        else
        {
            emit(edit.text, mySource.endsInLineComment(edit.text));
        }
        myKept = std::max(myKept, edit.end);
    }
    emitKept(mySource.text().size());
    if (myNeedsLineEnd)
    {
        myResult.text += myResult.conflicts.empty() ? "" : myLineEnd;
    }
    return std::move(myResult);
}
