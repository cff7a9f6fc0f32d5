#include "Fuzz.h"

#include "TextLayout.h"
#include "TextReading.h"
#include "XmlLayout.h"

namespace
{
void layOutText(std::string_view text)
{
    TextTree const tree((std::string(text)));
    if (!tree.isReadable())
    {
        return;
    }
    TextReading reading("input.ope");
    std::string const out = laidOut(tree, reading);
    TextTree const again(out);
    if (!haveSameContent(tree, again))
    {
        fuzz::fail("a layout has all that the text has", text, out);
    }
    fuzz::expectEqual("a layout is laid out the same", out, laidOut(again, reading));
}

void layOutXml(std::string_view text)
{
    std::string out;
    std::string twice;
    std::string reason;
    if (laidOutXml("input.entity", std::string(text), out, reason))
    {
        laidOutXml("input.entity", out, twice, reason);
        fuzz::expectEqual("a layout is laid out the same", out, twice);
    }
}
} // namespace

/// The formatter, on parameter text and on XML: it loses nothing, and what it wrote it leaves alone.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    fuzz::prepare();
    std::string_view const text = fuzz::textOf(data, size);
    isXml(text) ? layOutXml(text) : layOutText(text);
    return 0;
}
