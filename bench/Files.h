#pragma once

#include <filesystem>
#include <string>

/// A folder for the files of a run; goes with the object.
class TemporaryFolder
{
public:
    TemporaryFolder();
    TemporaryFolder(TemporaryFolder const&) = delete;
    TemporaryFolder& operator=(TemporaryFolder const&) = delete;
    ~TemporaryFolder();

    std::filesystem::path const& path() const { return myPath; }

private:
    std::filesystem::path myPath;
};

/// Throws std::runtime_error.
void writeFile(std::filesystem::path const& path, std::string const& text);
std::string readFile(std::filesystem::path const& path);
/// Waits until all that was written is on the disk: what is still on its way slows whatever is measured beside it.
void settleFiles();
