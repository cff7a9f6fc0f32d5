#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string_view>

// FUZZ_HARNESSES is HARNESS(name) for each that is built in.
#define HARNESS(name) extern "C" int fuzz_##name(std::uint8_t const* data, std::size_t size);
FUZZ_HARNESSES
#undef HARNESS

namespace fuzz
{
/// One of the functions that `*_fuzz.cpp` define; it ends the process at what it finds broken.
struct Harness
{
    std::string_view name;
    int (*run)(std::uint8_t const* data, std::size_t size);
};

constexpr Harness theHarnesses[] = {
#define HARNESS(name) {#name, fuzz_##name},
    FUZZ_HARNESSES
#undef HARNESS
};

/// Null for a name that no harness has.
inline Harness const* harness(std::string_view name)
{
    auto const found = std::ranges::find_if(theHarnesses, [&](Harness const& one) { return one.name == name; });
    return found != std::end(theHarnesses) ? found : nullptr;
}
} // namespace fuzz
