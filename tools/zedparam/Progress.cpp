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
    }
}

void Progress::step()
{
    ++myDone;
    if (myIsShown)
    {
        std::fprintf(stderr, "\r%s %zu/%zu\033[K", myWhat.c_str(), myDone, myTotal);
    }
}
