#include "AxNearest.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace
{
constexpr std::size_t theLargestDistance = 3;
constexpr std::size_t theLongestWord = 127;

/// Edit distance of two words of at most `theLongestWord` bytes; any number from `limit` upwards once it is not below.
std::size_t editDistance(std::string_view a, std::string_view b, std::size_t limit)
{
    std::size_t const difference = a.size() > b.size() ? a.size() - b.size() : b.size() - a.size();
    if (difference >= limit)
    {
        return limit;
    }
    std::array<std::size_t, theLongestWord + 1> row;
    for (std::size_t j = 0; j <= b.size(); ++j)
    {
        row[j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i)
    {
        std::size_t diagonal = row[0];
        row[0] = i;
        std::size_t smallest = i;
        for (std::size_t j = 1; j <= b.size(); ++j)
        {
            std::size_t const replaced = diagonal + (a[i - 1] == b[j - 1] ? 0 : 1);
            diagonal = row[j];
            row[j] = std::min({replaced, row[j] + 1, row[j - 1] + 1});
            smallest = std::min(smallest, row[j]);
        }
        if (smallest >= limit)
        {
            return limit;
        }
    }
    return row[b.size()];
}
} // namespace

std::string_view axNearest(std::string_view word, std::span<std::string_view const> candidates)
{
    std::string_view nearest;
    std::size_t limit = std::min(theLargestDistance, word.size() / 2) + 1;
    if (word.size() > theLongestWord)
    {
        return nearest;
    }
    for (std::string_view const candidate : candidates)
    {
        if (candidate.empty() || candidate.size() > theLongestWord)
        {
            continue;
        }
        std::size_t const distance = editDistance(word, candidate, limit);
        if (distance < limit)
        {
            nearest = candidate;
            limit = distance;
        }
    }
    return nearest;
}
