#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

// FUZZ_HARNESSES is HARNESS(name) for each that is built in.
#define HARNESS(name) extern "C" int fuzz_##name(std::uint8_t const* data, std::size_t size);
FUZZ_HARNESSES
#undef HARNESS

namespace
{
struct Harness
{
    std::string_view name;
    int (*run)(std::uint8_t const* data, std::size_t size);
};

constexpr Harness theHarnesses[] = {
#define HARNESS(name) {#name, fuzz_##name},
    FUZZ_HARNESSES
#undef HARNESS
};

std::string bytesOf(std::filesystem::path const& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}
} // namespace

/// Runs one harness over files, without a fuzzer: `fuzz_replay HARNESS FILE...`. Without arguments it lists the
/// harnesses. A harness ends the process at what it finds broken; the last file that was printed is the one.
int main(int count, char** arguments)
{
    std::string_view const wanted = count > 1 ? arguments[1] : "";
    for (Harness const& harness : theHarnesses)
    {
        if (wanted.empty())
        {
            std::puts(harness.name.data());
        }
        if (wanted != harness.name)
        {
            continue;
        }
        std::vector<std::filesystem::path> files;
        for (int i = 2; i < count; ++i)
        {
            files.push_back(std::filesystem::absolute(arguments[i])); // the harness goes to a folder of its own
        }
        for (std::filesystem::path const& file : files)
        {
            std::printf("%s %s\n", harness.name.data(), file.filename().c_str());
            std::fflush(stdout);
            std::string const bytes = bytesOf(file);
            // A memory block of just that size, so that a sanitizer sees what reads on.
            std::vector<std::uint8_t> const input(bytes.begin(), bytes.end());
            harness.run(input.data(), input.size());
        }
        return 0;
    }
    return wanted.empty() ? 0 : 2;
}
