#include "ReadFile.h"

#include <cstdio>
#include <cstring>

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
