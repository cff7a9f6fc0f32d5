#pragma once

#include "AxFilename.h"
#include "AxReadWholeFile.h"

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

struct ExampleText
{
    std::string file;
    std::string text;
};

/// All files of the example force, in the order of their names.
inline std::vector<ExampleText> exampleTexts()
{
    namespace fs = std::filesystem;
    std::vector<ExampleText> examples;
    for (fs::directory_entry const& file : fs::recursive_directory_iterator(ZEDOBJPARAM_SOURCE_DIR "/examples/force"))
    {
        ExampleText example{file.path().string(), {}};
        int error = 0;
        if (file.is_regular_file() && axReadWholeFile(AxFilename(example.file), example.text, error))
        {
            examples.push_back(std::move(example));
        }
    }
    std::sort(examples.begin(), examples.end(), [](auto const& a, auto const& b) { return a.file < b.file; });
    return examples;
}
