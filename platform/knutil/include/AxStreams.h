#pragma once

#include <concepts>
#include <cstdarg>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>

#include "AxExport.h"
#include "AxFilename.h"
#include "AxString.h"
#include "AxSymbolString.h"

/// Ends a line on an AxLogStream.
struct AxEndlType
{
};
inline constexpr AxEndlType AxEndl{};

/// A stream of message lines. What is written is gathered until a newline; each whole line, newline included, then
/// goes to the sink. Nothing that a sink does or throws reaches the writer. A stream has no destructor, so that it
/// can be written to while the process ends.
class ZEDOBJPARAM_API AxLogStream
{
public:
    using Sink = std::function<void(std::string const&)>;

    /// Where lines go while no sink is set.
    enum class Default
    {
        StandardError,
        Silent
    };

    constexpr explicit AxLogStream(Default target) : myDefault(target) {}
    AxLogStream(AxLogStream const&) = delete;
    AxLogStream& operator=(AxLogStream const&) = delete;

    /// Sends lines to `sink` from now on and answers the previous one; an empty one stands for the default.
    Sink setSink(Sink sink);

    /// False when whatever is written would be dropped.
    bool isActive() const { return mySinkIsSet || myDefault != Default::Silent; }

    /// Writes as printf does.
    [[gnu::format(printf, 2, 3)]] void operator()(char const* format, ...);

    /// Hands the gathered beginning of a line to the sink as it is.
    void flush();

    AxLogStream& operator<<(std::string_view text)
    {
        write(text);
        return *this;
    }
    AxLogStream& operator<<(std::string const& text) { return *this << std::string_view(text); }
    AxLogStream& operator<<(char const* text) { return *this << std::string_view(text != nullptr ? text : ""); }
    AxLogStream& operator<<(AxString const& text) { return *this << std::string_view(text.string()); }
    AxLogStream& operator<<(AxSymbolString text) { return *this << text.view(); }
    AxLogStream& operator<<(AxFilename const& file) { return *this << file.view(); }
    AxLogStream& operator<<(AxEndlType) { return *this << std::string_view("\n"); }
    AxLogStream& operator<<(char character) { return *this << std::string_view(&character, 1); }
    AxLogStream& operator<<(bool value) { return *this << (value ? "true" : "false"); }
    AxLogStream& operator<<(std::integral auto value)
    {
        if constexpr (std::is_signed_v<decltype(value)>)
        {
            writeSigned(value);
        }
        else
        {
            writeUnsigned(value);
        }
        return *this;
    }
    AxLogStream& operator<<(double value);

private:
    struct State;

    State& state();
    void write(std::string_view text);
    void writeSigned(long long value);
    void writeUnsigned(unsigned long long value);
    void deliver(std::string const& line) noexcept;

    Default myDefault;
    bool mySinkIsSet = false;
    State* myState = nullptr;
};

/// Failures; on the standard error stream unless a sink is set.
extern ZEDOBJPARAM_API AxLogStream AxWarn;
/// Progress and the places of failures; silent unless a sink is set.
extern ZEDOBJPARAM_API AxLogStream AxInfo;
/// Misses and other details; silent unless a sink is set.
extern ZEDOBJPARAM_API AxLogStream AxVerbose;
