#include "Progress.h"

#include <cstdio>
#include <unistd.h>
#include <utility>

Progress::Progress(std::string what, std::size_t total)
    : myWhat(std::move(what)), myTotal(total), myIsShown(isatty(STDERR_FILENO) != 0)
{
}

Progress::~Progress()
{
    clear();
}

void Progress::clear()
{
    if (myIsShown && myDone != 0)
    {
        std::fputs("\r\033[K", stderr);
        myNextLine = {};
    }
}

void Progress::step()
{
    ++myDone;
    if (!myIsShown)
    {
        return;
    }
    Clock::time_point const now = Clock::now();
    if (now >= myNextLine || myDone == myTotal)
    {
        constexpr std::chrono::milliseconds pause(50);
        myNextLine = now + pause;
        show(std::chrono::duration<double>(now - myBegin).count());
    }
}

void Progress::show(double seconds) const
{
    double const rest = seconds / static_cast<double>(myDone) * static_cast<double>(myTotal - myDone);
    std::fprintf(stderr, "\r%s %zu/%zu", myWhat.c_str(), myDone, myTotal);
    if (seconds >= 1.0)
    {
        std::fprintf(stderr, ", about %.0f s left", rest);
    }
    std::fputs("\033[K", stderr);
}
