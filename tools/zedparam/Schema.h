#pragma once

#include <string>

#include "AxKeyword.h"

class AxReaderWriter;

/// What a value looks like in JSON, and with it in XML: told by how its default is written.
enum class ValueShape
{
    Text,
    Boolean,
    Integer,
    Real,
    Numbers, ///< an array of numbers
    Other
};

ValueShape shapeOf(AxReaderWriter& value);

/// JSON Schema (draft 2020-12) of the records that `convert --to json` writes.
std::string jsonSchema();
/// XML Schema of entity files.
std::string xmlSchema();
/// All types and keywords as a manual.
std::string markdownManual();
