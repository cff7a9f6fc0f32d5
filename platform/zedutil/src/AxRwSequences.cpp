#include "AxNLengthRealVector.h"
#include "AxReaderWriterFactory.h"
#include "AxRwForces.h"
#include "AxRwNLengthStringVector.h"
#include "AxRwObjectTypeList.h"
#include "AxRwRealAttributeList.h"
#include "AxRwStringAttributeList.h"
#include "AxRwStringList.h"

#include <algorithm>

namespace
{
AxTypeEntry<AxRwStringList> const stringListEntry;
AxTypeEntry<AxRwNLengthStringVector> const stringVectorEntry;
AxTypeEntry<AxNLengthRealVector> const realVectorEntry;
AxTypeEntry<AxRwObjectTypeList> const objectTypeListEntry;
AxTypeEntry<AxRwForces> const forcesEntry;
AxTypeEntry<AxRwStringAttributeList> const stringAttributesEntry;
AxTypeEntry<AxRwRealAttributeList> const realAttributesEntry;
} // namespace

AxRwStringList::~AxRwStringList() = default;

char const* AxRwStringList::readerWriterType() const
{
    return "AxRwStringList";
}

AxRwNLengthStringVector::~AxRwNLengthStringVector() = default;

char const* AxRwNLengthStringVector::readerWriterType() const
{
    return "AxRwNLengthStringVector";
}

AxNLengthRealVector::~AxNLengthRealVector() = default;

char const* AxNLengthRealVector::readerWriterType() const
{
    return "AxNLengthRealVector";
}

AxRwObjectTypeList::~AxRwObjectTypeList() = default;

char const* AxRwObjectTypeList::readerWriterType() const
{
    return "AxRwObjectTypeList";
}

bool AxRwObjectTypeList::accepts(AxObjectType const& type) const
{
    return empty() ||
           std::any_of(begin(), end(), [&type](AxObjectType const& pattern) { return type.matchPattern(pattern); });
}

AxRwForces::~AxRwForces() = default;

char const* AxRwForces::readerWriterType() const
{
    return "AxRwForces";
}

AxRwStringAttributeList::~AxRwStringAttributeList() = default;

char const* AxRwStringAttributeList::readerWriterType() const
{
    return "AxRwStringAttributeList";
}

AxRwRealAttributeList::~AxRwRealAttributeList() = default;

char const* AxRwRealAttributeList::readerWriterType() const
{
    return "AxRwRealAttributeList";
}
