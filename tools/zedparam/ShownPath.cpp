#include "ShownPath.h"

#include <filesystem>

#include "AxFilename.h"

namespace fs = std::filesystem;

std::string shownPath(std::string const& file)
{
    std::error_code unknown;
    fs::path const path = fs::path(AxFilename(file).native()).lexically_normal();
    fs::path const below = path.lexically_relative(fs::current_path(unknown));
    return below.empty() || *below.begin() == ".." ? path.string() : below.string();
}
