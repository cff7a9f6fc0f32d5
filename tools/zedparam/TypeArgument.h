#pragma once

#include <string>

#include "AxObjectType.h"

class Database;

/// An object type as a user writes it. Seven fields leave the super type open.
struct TypeArgument
{
    AxObjectType type;
    bool hasSuperType = true;
};

/// False, and a line that tells what was expected, for any text that is no object type.
bool readType(std::string const& text, TypeArgument& out);

/// The type to ask: as written or, when seven fields find nothing in `database`, that of an individual entity.
AxObjectType typeToAsk(TypeArgument const& argument, Database const& database);
