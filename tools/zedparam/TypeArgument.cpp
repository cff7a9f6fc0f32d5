#include "TypeArgument.h"

#include <cstdio>

#include "Database.h"

bool readType(std::string const& text, TypeArgument& out)
{
    if (!AxObjectType::fromString(text, out.type))
    {
        std::fprintf(stderr,
                     "zedparam: \"%s\" is no object type; expected eight whole numbers, super type first "
                     "(1:1:1:225:1:1:3:0), or seven without it (1:1:225:1:1:3:0)\n",
                     text.c_str());
        return false;
    }
    std::size_t numbers = 1;
    for (std::size_t i = 1; i < text.size(); ++i)
    {
        bool const separates = text[i - 1] == ':' || text[i - 1] == ' ';
        numbers += separates && text[i] != ':' && text[i] != ' ';
    }
    out.hasSuperType = numbers == AxObjectType::theNumFields;
    return true;
}

AxObjectType typeToAsk(TypeArgument const& argument, Database const& database)
{
    if (argument.hasSuperType || database.entryForLookup(argument.type).entry != nullptr)
    {
        return argument.type;
    }
    constexpr int theIndividualEntity = 1;
    return AxObjectType(argument.type.entityType(), theIndividualEntity);
}
