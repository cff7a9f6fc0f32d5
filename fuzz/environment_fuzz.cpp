#include "Fuzz.h"

#include "AxEnvXMLReader.h"
#include "AxEnvXMLWriter.h"

/// XML: what is read is written so that it gives an equal tree.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    fuzz::prepare();
    AxEnvironmentPtr const tree = AxEnvXMLReader::readText(fuzz::textOf(data, size), AxFilename("input"));
    std::string written;
    if (tree && AxEnvXMLWriter().writeText(tree, written))
    {
        AxEnvironmentPtr const again = AxEnvXMLReader::readText(written, AxFilename("again"));
        std::string twice;
        AxEnvXMLWriter().writeText(again, twice);
        fuzz::expectEqual("a tree is written the same again", written, twice);
        if (!equalTrees(tree, again))
        {
            fuzz::fail("a tree is read again the same", written, twice);
        }
    }
    return 0;
}
