#pragma once

#include <utility>

#include "AxBaseHashKey.h"
#include "AxString.h"

/// Key by the exact bytes of a text.
class ZEDOBJPARAM_API AxStringHashKey : public AxBaseHashKey
{
public:
    explicit AxStringHashKey(AxString text) : myText(std::move(text)) {}

    AxString const& string() const { return myText; }

    std::size_t hash() const override { return std::hash<AxString>()(myText); }
    bool equals(AxBaseHashKey const& other) const override;
    AxStringHashKey* clone() const override { return new AxStringHashKey(*this); }

private:
    AxString myText;
};
