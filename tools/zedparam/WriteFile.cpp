#include "WriteFile.h"

#include <cstdio>
#include <cstring>

#include "AxFilename.h"
#include "AxReplaceFile.h"

bool writeFile(std::string const& file, std::string_view text)
{
    int error = 0;
    if (!axReplaceFile(AxFilename(file), text, error))
    {
        std::fprintf(stderr, "zedparam: cannot write \"%s\": %s\n", file.c_str(), std::strerror(error));
        return false;
    }
    return true;
}
