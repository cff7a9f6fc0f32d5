#include "Harnesses.h"

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace
{
std::string bytesOf(std::filesystem::path const& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}
} // namespace

/// Runs one harness over files, without a fuzzer: `fuzz_replay HARNESS FILE...`. Without arguments it lists the
/// harnesses. The last file that was printed is the one at which a harness ended the process.
int main(int count, char** arguments)
{
    if (count == 1)
    {
        for (fuzz::Harness const& each : fuzz::theHarnesses)
        {
            std::puts(each.name.data());
        }
        return 0;
    }
    fuzz::Harness const* const harness = fuzz::harness(arguments[1]);
    if (!harness)
    {
        return 2;
    }
    std::vector<std::filesystem::path> files;
    for (int i = 2; i < count; ++i)
    {
        files.push_back(std::filesystem::absolute(arguments[i])); // the harness goes to a folder of its own
    }
    for (std::filesystem::path const& file : files)
    {
        std::printf("%s %s\n", harness->name.data(), file.filename().c_str());
        std::fflush(stdout);
        std::string const bytes = bytesOf(file);
        // A memory block of just that size, so that a sanitizer sees what reads on.
        std::vector<std::uint8_t> const input(bytes.begin(), bytes.end());
        harness->run(input.data(), input.size());
    }
    return 0;
}
