#include "RangeText.h"

#include "AxNumberText.h"

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
