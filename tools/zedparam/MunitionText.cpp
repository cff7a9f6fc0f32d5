#include "MunitionText.h"

#include "AxSimMunition.h"

std::string munitionText(AxSimMunition const& munition)
{
    std::string text = munition.munitionType().isNull() ? "" : munition.munitionType().string().string();
    if (!munition.munitionName().isNull())
    {
        text.append(text.empty() ? "" : " ").append(munition.munitionName().string());
    }
    return text.empty() ? "any" : text;
}
