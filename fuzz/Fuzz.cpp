#include "Fuzz.h"

#include "AxDefaultComponentDescriptorFactory.h"
#include "AxDefaultParameterFactory.h"
#include "AxDiagnostic.h"
#include "AxSinkScope.h"
#include "AxlFunctions.h"
#include "AxlInputStream.h"
#include "AxlPrint.h"
#include "AxlSyntaxError.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <set>
#include <sstream>
#include <vector>

namespace
{
std::set<std::string, std::less<>> theCodes;

/// Made once, and there until the process ends.
struct World
{
    World()
    {
        AxComponentDescriptor::setFactory(&descriptors);
        AxZedObjectParameters::setFactory(&records);
        AxDiagnostics::setSink([](AxDiagnostic const& finding) { theCodes.insert(finding.code); });
        std::string folder = (std::filesystem::temp_directory_path() / "fuzz-XXXXXX").string();
        if (mkdtemp(folder.data()) != nullptr)
        {
            std::filesystem::current_path(folder);
        }
    }

    AxDefaultComponentDescriptorFactory descriptors;
    AxDefaultParameterFactory records;
    AxSinkScope warnings{AxWarn, [](std::string const&) {}};
    AxSinkScope infos{AxInfo, [](std::string const&) {}};
};
} // namespace

void fuzz::prepare()
{
    static World world;
    theCodes.clear();
}

void fuzz::fail(char const* promise, std::string_view one, std::string_view other)
{
    std::fprintf(stderr, "broken: %s\n---- one\n%.*s\n---- other\n%.*s\n", promise, static_cast<int>(one.size()),
                 one.data(), static_cast<int>(other.size()), other.data());
    std::abort();
}

bool fuzz::read(AxReaderWriter& object, std::string_view text)
{
    return object.readText(text, AxFilename("input"), {}, {});
}

bool fuzz::wasReported(std::string_view code)
{
    return theCodes.contains(code);
}

std::string fuzz::cellsOf(std::string_view text)
{
    AxlInputStream stream((std::string(text)));
    std::string out;
    try
    {
        AxlObjPtr const expression = AxcRead(stream);
        axAppendCell(out, expression.get());
    }
    catch (AxlSyntaxError const&)
    {
        out = "not readable: " + std::string(text);
    }
    return out;
}

std::string fuzz::sortedLines(std::string const& text)
{
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
    {
        // The last item of a list has the list's brackets.
        lines.push_back(line.substr(0, line.find_last_not_of(')') + 1));
    }
    std::ranges::sort(lines);
    std::string out;
    for (std::string const& line : lines)
    {
        out += line + '\n';
    }
    return out;
}
