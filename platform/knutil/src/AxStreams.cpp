#include "AxStreams.h"

#include <cstdio>
#include <memory>
#include <utility>

#include "AxNumberText.h"

constinit AxLogStream AxWarn(AxLogStream::Default::StandardError);
constinit AxLogStream AxInfo(AxLogStream::Default::Silent);
constinit AxLogStream AxVerbose(AxLogStream::Default::Silent);

struct AxLogStream::State
{
    /// Shared, so that a sink may replace itself while it runs.
    std::shared_ptr<Sink const> sink;
    std::string line;
};

AxLogStream::State& AxLogStream::state()
{
    if (myState == nullptr)
    {
        myState = new State;
    }
    return *myState;
}

AxLogStream::Sink AxLogStream::setSink(Sink sink)
{
    try
    {
        State& own = state();
        Sink previous = own.sink != nullptr ? *own.sink : Sink();
        own.sink = sink ? std::make_shared<Sink const>(std::move(sink)) : nullptr;
        mySinkIsSet = own.sink != nullptr;
        if (!isActive())
        {
            own.line.clear();
        }
        return previous;
    }
    catch (...)
    {
        return {};
    }
}

void AxLogStream::operator()(char const* format, ...)
{
    if (!isActive() || format == nullptr)
    {
        return;
    }
    std::va_list arguments;
    va_start(arguments, format);
    std::va_list again;
    va_copy(again, arguments);
    char brief[512];
    int const length = std::vsnprintf(brief, sizeof brief, format, arguments);
    if (length >= 0 && static_cast<std::size_t>(length) < sizeof brief)
    {
        write({brief, static_cast<std::size_t>(length)});
    }
    else if (length >= 0)
    {
        try
        {
            std::string text(static_cast<std::size_t>(length) + 1, '\0');
            std::vsnprintf(text.data(), text.size(), format, again);
            text.pop_back();
            write(text);
        }
        catch (...)
        {
            write({brief, sizeof brief - 1});
        }
    }
    va_end(again);
    va_end(arguments);
}

void AxLogStream::flush()
{
    if (myState != nullptr && !myState->line.empty())
    {
        deliver(std::exchange(myState->line, {}));
    }
}

AxLogStream& AxLogStream::operator<<(double value)
{
    if (isActive())
    {
        std::string text;
        axAppendReal(text, value);
        write(text);
    }
    return *this;
}

void AxLogStream::writeSigned(long long value)
{
    if (isActive())
    {
        write(std::to_string(value));
    }
}

void AxLogStream::writeUnsigned(unsigned long long value)
{
    if (isActive())
    {
        write(std::to_string(value));
    }
}

void AxLogStream::write(std::string_view text)
{
    if (!isActive())
    {
        return;
    }
    try
    {
        State& own = state();
        for (std::size_t end = text.find('\n'); end != std::string_view::npos; end = text.find('\n'))
        {
            // Taken out before it is delivered, because a sink may write to this stream itself.
            std::string line = std::exchange(own.line, {});
            line.append(text.substr(0, end + 1));
            text.remove_prefix(end + 1);
            deliver(line);
        }
        own.line.append(text);
    }
    catch (...)
    {
    }
}

void AxLogStream::deliver(std::string const& line) noexcept
{
    try
    {
        if (std::shared_ptr<Sink const> const sink = myState->sink)
        {
            (*sink)(line);
        }
        else if (myDefault == Default::StandardError)
        {
            std::fwrite(line.data(), 1, line.size(), stderr);
        }
    }
    catch (...)
    {
    }
}
