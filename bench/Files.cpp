#include "Files.h"

#include <fstream>
#include <stdexcept>
#include <stdlib.h>
#include <unistd.h>

namespace fs = std::filesystem;

TemporaryFolder::TemporaryFolder()
{
    std::string folder = (fs::temp_directory_path() / "zedobjparam-bench-").string() + std::string(6, 'X');
    if (!mkdtemp(folder.data()))
    {
        throw std::runtime_error("cannot make a temporary folder");
    }
    myPath = folder;
}

TemporaryFolder::~TemporaryFolder()
{
    std::error_code ignored;
    fs::remove_all(myPath, ignored);
}

void writeFile(fs::path const& path, std::string const& text)
{
    std::ofstream stream(path, std::ios::binary);
    stream << text;
    if (!stream.flush())
    {
        throw std::runtime_error("cannot write " + path.string());
    }
}

std::string readFile(fs::path const& path)
{
    std::ifstream stream(path, std::ios::binary);
    std::string text(static_cast<std::size_t>(fs::file_size(path)), '\0');
    stream.read(text.data(), static_cast<std::streamsize>(text.size()));
    return text;
}

void settleFiles()
{
    sync();
}
