#pragma once

#include "AxFilename.h"

#include <exception>
#include <utility>

/// Reports an exception that ends a step, with its place where it knows one; without memory in few words. Throws
/// nothing.
void axReportException(char const* code, AxFilename const& file, std::exception const* error) noexcept;

/// The wall of a public entry: what `step` answers, or `otherwise` after a report when it throws.
template <typename Result, typename Step>
Result axGuarded(char const* code, AxFilename const& file, Result otherwise, Step&& step) noexcept
{
    try
    {
        return std::forward<Step>(step)();
    }
    catch (std::exception const& error)
    {
        axReportException(code, file, &error);
    }
    catch (...)
    {
        axReportException(code, file, nullptr);
    }
    return otherwise;
}
