#include "PathText.h"

#include <algorithm>
#include <charconv>

namespace
{
constexpr std::string_view theOpening = "[\"";
constexpr std::string_view theClosing = "\"]";

/// What stands between the quotes.
std::string unquoted(std::string_view quoted)
{
    quoted.remove_prefix(theOpening.size());
    quoted.remove_suffix(theClosing.size());
    std::string text;
    for (std::size_t i = 0; i < quoted.size(); ++i)
    {
        i += quoted[i] == '\\' && i + 1 < quoted.size();
        text += quoted[i];
    }
    return text;
}

/// Takes "[2]" from the end of a name; 0 when there is none. False for what is no number from 1.
bool takePosition(std::string& name, std::size_t& position)
{
    position = 0;
    std::size_t const bracket = name.rfind('[');
    if (bracket == std::string::npos || !name.ends_with(']'))
    {
        return true;
    }
    char const* const end = name.data() + name.size() - 1;
    auto const [stop, error] = std::from_chars(name.data() + bracket + 1, end, position);
    name.resize(bracket);
    return error == std::errc() && stop == end && position != 0;
}

bool readStep(std::string_view text, KeywordStep& step)
{
    std::size_t const quoted = std::min(text.find(theOpening), text.size());
    std::size_t const behind = behindQuoted(text, quoted);
    step.isQuoted = quoted == 0 && behind != 0;
    if (quoted == behind) // nothing is in quotes
    {
        step.name = text;
        return takePosition(step.name, step.position) && !step.name.empty();
    }
    (step.isQuoted ? step.name : step.identity) = unquoted(text.substr(quoted, behind - quoted));
    std::string rest(text.substr(behind));
    bool const hasPosition = takePosition(rest, step.position);
    step.name.append(text, 0, quoted);
    return hasPosition && rest.empty() && !step.name.empty() && (step.isQuoted || !step.identity.empty());
}
} // namespace

std::size_t behindQuoted(std::string_view text, std::size_t at)
{
    if (!text.substr(at).starts_with(theOpening))
    {
        return at;
    }
    for (std::size_t i = at + theOpening.size(); i < text.size(); ++i)
    {
        if (text[i] == '\\')
        {
            ++i;
        }
        else if (text.substr(i).starts_with(theClosing))
        {
            return i + theClosing.size();
        }
    }
    return at;
}

std::size_t findOutsideQuotes(std::string_view path, char byte, std::size_t from)
{
    while (from < path.size() && path[from] != byte)
    {
        std::size_t const behind = behindQuoted(path, from);
        from = behind != from ? behind : from + 1;
    }
    return from < path.size() ? from : std::string_view::npos;
}

bool readPath(std::string_view path, std::vector<KeywordStep>& steps)
{
    steps.clear();
    for (std::size_t begin = 0; begin <= path.size();)
    {
        std::size_t const end = std::min(findOutsideQuotes(path, '/', begin), path.size());
        KeywordStep& step = steps.emplace_back();
        step.begin = begin;
        if (!readStep(path.substr(begin, end - begin), step))
        {
            return false;
        }
        begin = end + 1;
    }
    return true;
}

std::string stepOf(std::string_view name)
{
    std::vector<KeywordStep> steps;
    bool const isStep = readPath(name, steps) && steps.size() == 1 && steps.front().name == name && name != "*" &&
                        name != "**" && name.find_first_of(" \t\"'()<>~!=") == std::string_view::npos;
    return isStep ? std::string(name) : stepOf({}, name);
}

std::string stepOf(std::string_view name, std::string_view identity)
{
    std::string text(name);
    text += theOpening;
    for (char const byte : identity)
    {
        text.append(byte == '"' || byte == '\\' ? 1 : 0, '\\') += byte;
    }
    return text.append(theClosing);
}
