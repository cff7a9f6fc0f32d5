#include "Fuzz.h"

#include "AxComponentSystemDefinition.h"
#include "AxComponentSystemDescriptor.h"

#include <memory>

/// A system definition, and the same text as a system of a record.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    fuzz::prepare();
    std::string_view const text = fuzz::textOf(data, size);
    fuzz::readTwice(text, [] { return std::make_unique<AxComponentSystemDefinition>("", nullptr); });
    fuzz::readTwice(text, [] { return std::make_unique<AxComponentSystemDescriptor>("", nullptr); });
    return 0;
}
