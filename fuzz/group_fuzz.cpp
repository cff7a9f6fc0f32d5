#include "Fuzz.h"

#include "AxSimulationObjectGroupModelSetEntry.h"

#include <cstdio>
#include <fstream>
#include <iterator>

namespace
{
void writeFile(char const* file, std::string_view text)
{
    std::ofstream(file, std::ios::binary).write(text.data(), static_cast<std::streamsize>(text.size()));
}

std::string fileText(char const* file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}
} // namespace

/// The file of a group: what is saved is read and saved again the same.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    fuzz::prepare();
    writeFile("input.sog", fuzz::textOf(data, size));
    AxSimulationObjectGroupModelSetEntry group(AxSymbolString(), nullptr);
    if (!group.load(AxFilename("input.sog")) || !group.save(AxFilename("saved.sog")))
    {
        return 0;
    }
    std::string const saved = fileText("saved.sog");
    AxSimulationObjectGroupModelSetEntry again(AxSymbolString(), nullptr);
    if (!again.load(AxFilename("saved.sog")) || !again.equals(group))
    {
        fuzz::fail("a saved group is the group", fuzz::textOf(data, size), saved);
    }
    again.save(AxFilename("saved.sog"));
    fuzz::expectEqual("a group is saved the same again", saved, fileText("saved.sog"));
    return 0;
}
