#include "Fuzz.h"

#include "AxSxpParameterDbFileData.h"

#include <memory>

/// The database file: entries, variables, versions.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    fuzz::prepare();
    fuzz::readTwice(fuzz::textOf(data, size), [] { return std::make_unique<AxSxpParameterDbFileData>("", nullptr); });
    return 0;
}
