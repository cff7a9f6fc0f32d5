#include "Fuzz.h"

#include "AxModelSet.h"

#include <memory>

/// A model set; every entry is found by what it says of itself.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    fuzz::prepare();
    auto const models =
        fuzz::readTwice(fuzz::textOf(data, size), [] { return std::make_unique<AxModelSet>("", nullptr); });
    for (AxModelSetEntry const* entry : *models)
    {
        AxModelSetEntry const* const found = models->find(entry->objectType());
        if (found == nullptr || !(found->objectType() == entry->objectType()))
        {
            fuzz::fail("an entry is found by its type", entry->writtenText(), models->writtenText());
        }
    }
    return 0;
}
