#include "RangeText.h"

#include <cmath>

#include "AxNumberText.h"
#include "AxReaderWriter.h"
#include "RecordValue.h"

std::string rangeText(AxRange const& range)
{
    std::string text;
    if (range.low != -axUnbounded)
    {
        axAppendReal(text, range.low);
        text += range.high != axUnbounded ? " to " : " or more";
    }
    else
    {
        text += "at most ";
    }
    if (range.high != axUnbounded)
    {
        axAppendReal(text, range.high);
    }
    return text;
}

std::string rangeFault(AxReaderWriter const& rw)
{
    AxKeyword const* const description = rw.description();
    return description != nullptr ? rangeFault(rw, description->range) : std::string();
}

std::string rangeFault(AxReaderWriter const& rw, AxRange const& range)
{
    double value = 0.0;
    if (!numberIn(rw, value))
    {
        return {};
    }
    if (!std::isnan(value) && (!range.isBounded() || range.contains(value)))
    {
        return {};
    }
    std::string text;
    axAppendReal(text, value);
    return text.append(", expected ").append(range.isBounded() ? rangeText(range) : "a number");
}
