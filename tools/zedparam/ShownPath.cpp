#include "ShownPath.h"

#include <filesystem>
#include <vector>

#include "AxFilename.h"

namespace fs = std::filesystem;

namespace
{
struct GivenDirectory
{
    fs::path whole;
    fs::path given;
};

std::vector<GivenDirectory>& givenDirectories()
{
    static std::vector<GivenDirectory> directories;
    return directories;
}

bool isOutside(fs::path const& relative)
{
    return relative.empty() || *relative.begin() == "..";
}
} // namespace

void rememberGivenPath(std::string const& path)
{
    fs::path const given = fs::path(path).lexically_normal();
    if (given.empty() || *given.begin() != "..")
    {
        return;
    }
    std::error_code ignored;
    fs::path const directory = fs::is_directory(given, ignored) ? given : given.parent_path();
    givenDirectories().push_back({fs::absolute(directory, ignored).lexically_normal(), directory});
}

std::string shownPath(std::string const& file)
{
    std::error_code unknown;
    fs::path const path = fs::path(AxFilename(file).native()).lexically_normal();
    fs::path const below = path.lexically_relative(fs::current_path(unknown));
    if (!isOutside(below))
    {
        return below.string();
    }
    for (GivenDirectory const& directory : givenDirectories())
    {
        if (fs::path const inside = path.lexically_relative(directory.whole); !isOutside(inside))
        {
            return (directory.given / inside).string();
        }
    }
    return path.string();
}
