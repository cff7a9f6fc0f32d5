#include "WriteFile.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <system_error>

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

bool writeMade(std::string const& file, std::string_view text, std::span<std::string const> sources)
{
    for (std::string const& source : sources)
    {
        std::error_code ignored;
        if (std::filesystem::equivalent(file, source, ignored))
        {
            std::fprintf(stderr, "zedparam: \"%s\" is the file that is read; expected another one to write\n",
                         file.c_str());
            return false;
        }
    }
    return writeFile(file, text);
}
