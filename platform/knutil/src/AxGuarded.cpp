#include "AxGuarded.h"

#include "AxDiagnostic.h"

#include <new>

void axReportException(char const* code, AxFilename const& file, std::exception const* error) noexcept
{
    AxDiagnostic fault;
    try
    {
        fault.code = code;
        fault.text = error != nullptr ? error->what() : "an exception that is none of the standard library's";
        if (dynamic_cast<std::bad_alloc const*>(error) != nullptr)
        {
            fault.text = "no memory";
        }
        fault.file = file.native();
    }
    catch (...)
    {
        // What does fit is told.
    }
    AxDiagnostics::report(std::move(fault));
}
