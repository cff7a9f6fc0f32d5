#pragma once

#include "AxEntityType.h"
#include "AxRwUnsigned.h"

/// The 32-bit appearance word of the protocol. Kind and domain of the entity type tell how its bits are read; the type
/// is not written. The initial word is 0.
class ZEDOBJPARAM_API AxRwAppearance : public AxRwUnsigned
{
public:
    using AxRwUnsigned::AxRwUnsigned;
    AxRwAppearance(AxKeyword const& keyword, AxEntityType const& type, AxReaderWriterRegistry* registry)
        : AxRwUnsigned(keyword, registry), myEntityType(type)
    {
    }
    AxRwAppearance(AxSymbolString keyword, AxEntityType const& type, AxReaderWriterRegistry* registry)
        : AxRwUnsigned(keyword, registry), myEntityType(type)
    {
    }
    AxRwAppearance(AxRwAppearance const&) = default;
    ~AxRwAppearance() override;

    AxRwAppearance& operator=(AxRwAppearance const&) = default;
    using AxRwUnsigned::operator=;

    AxEntityType const& entityType() const { return myEntityType; }
    void setEntityType(AxEntityType const& type) { myEntityType = type; }

    char const* readerWriterType() const override;
    char const* xmlType() const override;

private:
    AxEntityType myEntityType;
};
