#include "AxEntityType.h"

#include "AxIntegerFields.h"

namespace
{
constexpr AxEntityType theNullType;
} // namespace

AxEntityType const& AxEntityType::nullType()
{
    return theNullType;
}

AxString AxEntityType::string(std::string_view separator) const
{
    return axJoinIntegerFields(myFields, separator);
}

bool AxEntityType::fromString(std::string_view text, AxEntityType& out)
{
    Fields fields{};
    if (axReadIntegerFields(text, fields) != theNumFields)
    {
        return false;
    }
    out = AxEntityType(fields);
    return true;
}
