#include "Harnesses.h"

#include <cstdio>
#include <cstdlib>

namespace
{
fuzz::Harness const* theHarness = nullptr;
}

/// The fuzzer: `fuzz --harness=NAME ...` with the fuzzer's own arguments, which leaves alone what begins with "--".
extern "C" int LLVMFuzzerInitialize(int* count, char*** arguments)
{
    constexpr std::string_view option = "--harness=";
    for (int i = 1; i < *count; ++i)
    {
        std::string_view const argument = (*arguments)[i];
        theHarness = argument.starts_with(option) ? fuzz::harness(argument.substr(option.size())) : theHarness;
    }
    if (!theHarness)
    {
        std::fputs("expected --harness=NAME, the name of a file NAME_fuzz.cpp\n", stderr);
        std::exit(2);
    }
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    return theHarness->run(data, size);
}
