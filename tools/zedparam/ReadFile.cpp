#include "ReadFile.h"

#include <cstdio>
#include <cstring>
#include <utility>

#include "AxDiagnostic.h"
#include "AxFilename.h"
#include "AxReadWholeFile.h"

bool readFile(std::string const& file, std::string& text)
{
    int error = 0;
    if (axReadWholeFile(AxFilename(file), text, error))
    {
        return true;
    }
    std::fprintf(stderr, "zedparam: cannot read \"%s\": %s\n", file.c_str(), std::strerror(error));
    return false;
}

bool readAgain(std::string const& file, std::string& text)
{
    int error = 0;
    if (axReadWholeFile(AxFilename(file), text, error))
    {
        return true;
    }
    AxDiagnostic finding;
    finding.code = "cannot-open";
    finding.file = file;
    finding.text = std::string("cannot read the file again: ") + std::strerror(error);
    AxDiagnostics::report(std::move(finding));
    return false;
}
