#include "AxObjectType.h"

#include <span>

#include "AxIntegerFields.h"

namespace
{
constexpr AxObjectType theNullObjectType;
} // namespace

AxObjectType const& AxObjectType::nullType()
{
    return theNullObjectType;
}

AxString AxObjectType::string(std::string_view separator) const
{
    return axJoinIntegerFields(std::span(myFields).subspan(superType() != 0 ? 0 : 1), separator);
}

bool AxObjectType::fromString(std::string_view text, AxObjectType& out)
{
    Fields fields{};
    int const count = axReadIntegerFields(text, fields);
    if (count == theNumFields)
    {
        out = AxObjectType(fields);
        return true;
    }
    AxEntityType type;
    if (count == AxEntityType::theNumFields && AxEntityType::fromString(text, type))
    {
        out = AxObjectType(type, 0);
        return true;
    }
    return false;
}
