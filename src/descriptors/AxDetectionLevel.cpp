#include "AxDetectionLevel.h"

#include <array>

namespace
{
constexpr std::array<char const*, 5> theWords{"none", "detected", "classified", "recognized", "identified"};
} // namespace

char const* axDetectionLevelWord(AxDetectionLevel level)
{
    auto const number = static_cast<std::size_t>(level);
    return number < theWords.size() ? theWords[number] : "";
}

AxDetectionLevel axDetectionLevel(std::string_view word, bool* found)
{
    std::size_t number = 0;
    while (number < theWords.size() && word != theWords[number])
    {
        ++number;
    }
    bool const isLevel = number < theWords.size();
    if (found)
    {
        *found = isLevel;
    }
    return isLevel ? static_cast<AxDetectionLevel>(number) : AxDetectionLevel::None;
}
