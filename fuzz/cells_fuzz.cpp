#include "Fuzz.h"

#include "AxlFunctions.h"
#include "AxlInputStream.h"
#include "AxlPrint.h"
#include "AxlSyntaxError.h"
#include "TextTree.h"

#include <optional>

namespace
{
std::optional<std::string> printed(std::string_view text)
{
    AxlInputStream stream((std::string(text)));
    try
    {
        std::string out;
        AxlObjPtr const expression = AxcRead(stream);
        axAppendCell(out, expression.get());
        // A byte-order mark is one only at the beginning of a text.
        return out.starts_with("\xEF\xBB\xBF") || AxlSyntaxError::isUtf16(out) ? " " + out : out;
    }
    catch (AxlSyntaxError const&)
    {
        return std::nullopt;
    }
}
} // namespace

/// Cells are printed so that they are read again the same, and the tree of the text covers every byte and agrees with
/// the reader on what can be read.
extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size)
{
    fuzz::prepare();
    std::string_view const text = fuzz::textOf(data, size);
    std::optional<std::string> const once = printed(text);
    if (once)
    {
        fuzz::expectEqual("printed cells are read the same", *once, printed(*once).value_or("(not read)"));
    }
    TextTree const tree((std::string(text)));
    fuzz::expectEqual("the tree reads what the reader reads", once ? "yes" : "no", tree.isReadable() ? "yes" : "no");
    std::string tokens;
    for (TextTree::Token const& token : tree.tokens())
    {
        tokens += tree.textOf(token);
    }
    fuzz::expectEqual("the tokens are the whole text", text, tokens);
    return 0;
}
