#include "AxString.h"

#include <ostream>

AxString const& AxString::nullString()
{
    static AxString const& null = *new AxString;
    return null;
}

AxString AxString::fromUnsigned(unsigned number)
{
    return std::to_string(number);
}

std::ostream& operator<<(std::ostream& out, AxString const& text)
{
    return out << text.string();
}
