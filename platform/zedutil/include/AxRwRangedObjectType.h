#pragma once

#include "AxRecordOf.h"
#include "AxRwObjectType.h"
#include "AxRwReal.h"

/// An object type pattern and a range in metres that goes with it.
class ZEDOBJPARAM_API AxRwRangedObjectType : public AxRecordOf<AxRwRangedObjectType, "AxRwRangedObjectType">
{
public:
    using AxRecordOf::AxRecordOf;
    AxRwRangedObjectType(AxRwRangedObjectType const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxRwRangedObjectType() override;
    AxRwRangedObjectType& operator=(AxRwRangedObjectType const& other);

    AxObjectType const& objectType() const { return myObjectType.value(); }
    void setObjectType(AxObjectType const& type) { assignSpecified(myObjectType, type); }
    double range() const { return myRange.value(); }
    void setRange(double range) { assignSpecified(myRange, range); }

private:
    AxRwObjectType myObjectType{{"object-type", "", "Types that the range holds for."}, registry()};
    AxRwReal myRange{{"range", "m", "The range.", {0.0, axUnbounded}}, registry()};
};
