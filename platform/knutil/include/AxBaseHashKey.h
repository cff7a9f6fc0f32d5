#pragma once

#include <cstddef>

#include "AxExport.h"

/// Key of an AxHashlist. Equal keys have equal hashes.
class ZEDOBJPARAM_API AxBaseHashKey
{
public:
    virtual ~AxBaseHashKey() = default;

    virtual std::size_t hash() const = 0;
    virtual bool equals(AxBaseHashKey const& other) const = 0;

    /// A copy that the caller owns.
    virtual AxBaseHashKey* clone() const = 0;
};
