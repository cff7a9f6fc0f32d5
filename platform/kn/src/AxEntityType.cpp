#include "AxEntityType.h"

#include "AxIntegerFields.h"

namespace
{
constexpr AxEntityType theNullEntityType;
} // namespace

AxEntityType const& AxEntityType::nullType()
{
    return theNullEntityType;
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
