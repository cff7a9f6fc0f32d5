#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

inline std::uint64_t axEightBytes(char const* at)
{
    std::uint64_t word = 0;
    std::memcpy(&word, at, sizeof word);
    return word;
}

/// Whether the bytes at `at`, as many as `word` has, are those of `word`; keywords are short, so without a call.
inline bool axSameBytes(char const* at, std::string_view word)
{
    std::size_t const size = word.size();
    if (size < 8)
    {
        return std::memcmp(at, word.data(), size) == 0;
    }
    std::uint64_t different = axEightBytes(at + size - 8) ^ axEightBytes(word.data() + size - 8);
    for (std::size_t i = 0; i + 8 < size && different == 0; i += 8)
    {
        different = axEightBytes(at + i) ^ axEightBytes(word.data() + i);
    }
    return different == 0;
}
