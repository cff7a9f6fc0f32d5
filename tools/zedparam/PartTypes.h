#pragma once

#include <memory>
#include <string>
#include <vector>

#include "AxReaderWriter.h"

/// What stands inside of records and systems, or in files of its own, and is neither record nor component.
struct PartType
{
    std::string name; ///< the word that chooses it in text, else that of its class
    std::unique_ptr<AxReaderWriter> made;
};

/// All of them, those of the reader/writer factory first.
std::vector<PartType> newPartTypes();
