#pragma once

#include <chrono>
#include <cstddef>
#include <string>

/// "what 12/100" on the standard error stream, after a second with an estimate of the time that is left; overwritten in
/// place and cleared in the end; nothing at all unless that stream is a terminal.
class Progress
{
public:
    Progress(std::string what, std::size_t total);
    Progress(Progress const&) = delete;
    Progress& operator=(Progress const&) = delete;
    ~Progress();

    void step();
    /// Clears the line, so that others may print; the next step shows it again.
    void clear();

private:
    using Clock = std::chrono::steady_clock;

    void show(double seconds) const;

    std::string myWhat;
    std::size_t myTotal;
    std::size_t myDone = 0;
    bool myIsShown;
    Clock::time_point myBegin = Clock::now();
    Clock::time_point myNextLine{};
};
