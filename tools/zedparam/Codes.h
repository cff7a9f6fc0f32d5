#pragma once

#include <span>
#include <string_view>

#include "AxDiagnostic.h"

class JsonWriter;

/// One kind of finding. The table of them is the only place that lists what the library and the tool may report.
struct Code
{
    enum class From
    {
        Reading,  ///< what the library says of a file that it reads
        Checking, ///< what the tool finds in what was read well
        Writing,  ///< a save, an export or a copy
        Machine,  ///< memory or a disk that fails, a file too long to be held
        Host      ///< a program that uses the library in a way that it does not allow
    };

    std::string_view name;
    AxSeverity severity; ///< the gravest that it comes with
    From from;
    std::string_view meaning;
};

/// All kinds by name.
std::span<Code const> allCodes();

void printCodes();
void writeCodes(JsonWriter& json);
