#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "AxReaderWriter.h"

/// What the harnesses share. Each calls `prepare` first; whatever a file may hold, none of the promises may break.
namespace fuzz
{
/// Sets both factories and silences all that is reported. The process works in an empty folder of its own from then on,
/// so that file names in the input lead nowhere.
void prepare();

inline std::string_view textOf(std::uint8_t const* data, std::size_t size)
{
    return {reinterpret_cast<char const*>(data), size};
}

/// Ends the process with what differs.
[[noreturn]] void fail(char const* promise, std::string_view one, std::string_view other);

inline void expectEqual(char const* promise, std::string_view one, std::string_view other)
{
    if (one != other)
    {
        fail(promise, one, other);
    }
}

bool read(AxReaderWriter& object, std::string_view text);

/// Whether a finding of that code came since `prepare` was called.
bool wasReported(std::string_view code);

/// The text without its layout.
std::string cellsOf(std::string_view text);

/// The lines without the brackets that close lists, in an order that does not depend on that of the items.
std::string sortedLines(std::string const& text);

/// Reads the text into an object and what that writes into another: whatever was read is written the same again.
/// Answers the first object.
template <class Make>
auto readTwice(std::string_view text, Make const& make)
{
    auto first = make();
    read(*first, text);
    if (wasReported("unclosed-list") || wasReported("unclosed-string"))
    {
        // What is cut off is kept as it stands, and may be more than that when its text is closed.
        std::string const closed = first->writtenText();
        first = make();
        read(*first, closed);
    }
    for (bool const all : {false, true})
    {
        std::string const written = first->writtenText(all);
        auto const second = make();
        read(*second, written);
        expectEqual("what is read again is written the same", cellsOf(written), cellsOf(second->writtenText(all)));
    }
    return first;
}
} // namespace fuzz
