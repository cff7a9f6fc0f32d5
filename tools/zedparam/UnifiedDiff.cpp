#include "UnifiedDiff.h"

#include <algorithm>
#include <iterator>
#include <string_view>
#include <vector>

#include "Colour.h"

namespace
{
struct Line
{
    std::string_view text; // with its end
    std::size_t position;  // bytes in front of it that are not blank
};

std::size_t solidBytes(std::string_view text)
{
    return static_cast<std::size_t>(
        std::ranges::count_if(text, [](char byte) { return byte != ' ' && (byte < '\t' || byte > '\r'); }));
}

std::vector<Line> linesOf(std::string_view text)
{
    std::vector<Line> lines;
    std::size_t position = 0;
    while (!text.empty())
    {
        std::size_t const length = std::min(text.find('\n'), text.size() - 1) + 1;
        lines.push_back({text.substr(0, length), position});
        position += solidBytes(lines.back().text);
        text.remove_prefix(length);
    }
    return lines;
}

/// A line of the one text, of the other, or of both.
struct DiffStep
{
    char mark; // '-', '+' or ' '
    std::string_view text;
};

std::vector<DiffStep> stepsBetween(std::vector<Line> const& before, std::vector<Line> const& after)
{
    std::vector<DiffStep> steps;
    auto left = before.begin();
    auto right = after.begin();
    // What both end with stays, even where XML changed more than blanks in front of it.
    auto const [leftTail, rightTail] = std::mismatch(before.rbegin(), before.rend(), after.rbegin(), after.rend(),
                                                     [](Line const& a, Line const& b) { return a.text == b.text; });
    auto const leftEnd = leftTail.base();
    auto const rightEnd = rightTail.base();
    while (left != leftEnd || right != rightEnd)
    {
        bool const hasBoth = left != leftEnd && right != rightEnd;
        if (hasBoth && left->position == right->position && left->text == right->text)
        {
            steps.push_back({' ', left->text});
            ++left;
            ++right;
            continue;
        }
        // Of two that begin at one place an empty line goes first.
        bool const isSamePlace = hasBoth && left->position == right->position;
        bool const takesRight =
            left == leftEnd || (hasBoth && (isSamePlace ? solidBytes(left->text) != 0 && solidBytes(right->text) == 0
                                                        : right->position < left->position));
        steps.push_back(takesRight ? DiffStep{'+', right++->text} : DiffStep{'-', left++->text});
    }
    std::transform(leftEnd, before.end(), std::back_inserter(steps),
                   [](Line const& line) {
                       return DiffStep{' ', line.text};
                   });
    // Within a change, what goes stands before what comes.
    for (auto from = steps.begin(); from != steps.end();)
    {
        auto const to = std::find_if(from, steps.end(), [](DiffStep const& step) { return step.mark == ' '; });
        std::stable_partition(from, to, [](DiffStep const& step) { return step.mark == '-'; });
        from = std::find_if_not(to, steps.end(), [](DiffStep const& step) { return step.mark == ' '; });
    }
    return steps;
}

std::string span(std::size_t first, std::size_t count)
{
    return std::to_string(count == 0 ? first - 1 : first) + (count == 1 ? "" : "," + std::to_string(count));
}
} // namespace

std::string unifiedDiff(std::string const& file, std::string const& before, std::string const& after)
{
    constexpr std::size_t theContext = 3;
    std::vector<DiffStep> const steps = stepsBetween(linesOf(before), linesOf(after));
    std::string out;
    std::size_t lineBefore = 1;
    std::size_t lineAfter = 1;
    std::size_t at = 0; // lines are counted up to here
    auto const countTo = [&](std::size_t end)
    {
        for (; at < end; ++at)
        {
            lineBefore += steps[at].mark != '+';
            lineAfter += steps[at].mark != '-';
        }
    };
    auto const isChange = [](DiffStep const& step) { return step.mark != ' '; };
    for (std::size_t next = 0; next < steps.size();)
    {
        auto const change = std::find_if(steps.begin() + static_cast<std::ptrdiff_t>(next), steps.end(), isChange);
        if (change == steps.end())
        {
            break;
        }
        auto const first = static_cast<std::size_t>(change - steps.begin());
        std::size_t end = first + 1; // behind the last change of the hunk
        for (std::size_t i = end; i < steps.size() && i < end + 2 * theContext + 1; ++i)
        {
            end = isChange(steps[i]) ? i + 1 : end;
        }
        std::size_t const begin = std::max(first, theContext) - theContext;
        std::size_t const stop = std::min(end + theContext, steps.size());
        countTo(begin);
        std::size_t const startBefore = lineBefore;
        std::size_t const startAfter = lineAfter;
        std::string body;
        for (std::size_t i = begin; i < stop; ++i)
        {
            bool const isEnded = steps[i].text.ends_with('\n');
            std::string line(1, steps[i].mark);
            line.append(steps[i].text.substr(0, steps[i].text.size() - (isEnded ? 1 : 0)));
            body += isChange(steps[i]) ? coloured(line, steps[i].mark == '-' ? Colour::Red : Colour::Green) : line;
            body += isEnded ? "\n" : "\n\\ No newline at end of file\n";
        }
        countTo(stop);
        out.append(out.empty() ? "--- " + file + "\n+++ " + file + "\n" : "");
        out.append("@@ -").append(span(startBefore, lineBefore - startBefore));
        out.append(" +").append(span(startAfter, lineAfter - startAfter)).append(" @@\n").append(body);
        next = stop;
    }
    return out;
}
