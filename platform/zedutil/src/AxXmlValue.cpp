#include "AxXmlValue.h"

#include "AxCharacters.h"
#include "AxDecimal.h"
#include "AxNumberText.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwObjectType.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxRwUnsigned.h"
#include "AxRwVector.h"

#include <algorithm>
#include <charconv>
#include <limits>

namespace
{
using Reading = AxTypeInfo::Reading;

/// Whether an attribute may be anything but the literal text that it looks like.
bool mayRefer(std::string_view text)
{
    return text.starts_with('$') || text.find("$(") != std::string_view::npos;
}

bool mayBeNumber(std::string_view text)
{
    return !text.empty() && (!axIsLetter(text.front()) || text == "inf" || text == "nan");
}

std::string_view withoutSpaces(std::string_view text)
{
    while (text.starts_with(' '))
    {
        text.remove_prefix(1);
    }
    while (text.ends_with(' '))
    {
        text.remove_suffix(1);
    }
    return text;
}

/// A number that is the whole of a text, behind which another byte stands.
bool readReal(std::string_view text, double& value)
{
    return axTakeDecimal(text.data(), value) == text.data() + text.size() || axParseReal(text, value);
}

/// Plain decimal digits, few enough for any of the whole numbers.
template <class Member, class Number>
bool readWhole(AxReaderWriter& member, std::string_view text)
{
    Number value = 0;
    auto const [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || text.size() > 9)
    {
        return false;
    }
    static_cast<Member&>(member).takeRead(value);
    return true;
}
} // namespace

bool AxXmlValue::isPlainWord(std::string_view text)
{
    return !text.empty() && !mayBeNumber(text) &&
           std::all_of(text.begin(), text.end(),
                       [](char byte) { return axIsLetter(byte) || axIsDigit(byte) || byte == '-' || byte == '_'; });
}

bool AxXmlValue::readAttribute(AxReaderWriter& member, Reading reading, std::string_view text, bool isGuided)
{
    std::string_view const word = isGuided ? withoutSpaces(text) : text;
    switch (reading)
    {
    case Reading::Real:
    {
        double value = 0.0;
        if (!readReal(word, value))
        {
            return false;
        }
        static_cast<AxRwReal&>(member).takeRead(value);
        return true;
    }
    case Reading::Int:
        return readWhole<AxRwInt, int>(member, word);
    case Reading::Unsigned:
        return readWhole<AxRwUnsigned, unsigned>(member, word);
    case Reading::Boolean:
    {
        bool const value = text == "true" || text == "True";
        if (!value && text != "false" && text != "False")
        {
            return false;
        }
        static_cast<AxRwBoolean&>(member).takeRead(value);
        return true;
    }
    case Reading::String:
        if (mayRefer(text) || (!isGuided && mayBeNumber(text)))
        {
            return false;
        }
        static_cast<AxRwString&>(member).takeRead(AxSharedText(text));
        return true;
    default:
        return false;
    }
}

bool AxXmlValue::readElement(AxReaderWriter& member, Reading reading, std::string_view text)
{
    if (reading == Reading::ObjectType)
    {
        AxObjectType type;
        bool const isPlain = text.find(':') != std::string_view::npos &&
                             std::all_of(text.begin(), text.end(),
                                         [](char byte) { return axIsDigit(byte) || byte == ':' || byte == '-'; });
        if (!isPlain || !AxObjectType::fromString(text, type))
        {
            return false;
        }
        static_cast<AxRwObjectType&>(member).takeRead(type);
        return true;
    }
    double xyz[3] = {};
    for (double& value : xyz)
    {
        text = withoutSpaces(text);
        std::string_view const word = text.substr(0, text.find(' '));
        if (word.empty() || !(axIsDigit(word.front()) || word.front() == '-') || !readReal(word, value))
        {
            return false;
        }
        text.remove_prefix(word.size());
    }
    if (reading != Reading::Vector || !withoutSpaces(text).empty())
    {
        return false;
    }
    static_cast<AxRwVector&>(member).takeRead(AxVector64(xyz[0], xyz[1], xyz[2]));
    return true;
}
