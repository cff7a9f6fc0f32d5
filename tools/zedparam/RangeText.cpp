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
    double value = 0.0;
    if (description == nullptr || !numberIn(rw, value))
    {
        return {};
    }
    AxRange const& range = description->range;
    if (!std::isnan(value) && (!range.isBounded() || range.contains(value)))
    {
        return {};
    }
    std::string text;
    axAppendReal(text, value);
    return text.append(", expected ").append(range.isBounded() ? rangeText(range) : "a number");
}
