#pragma once

#include "AxRecordOf.h"
#include "AxRwEntityType.h"
#include "AxRwInt.h"

/// How strongly one object type or pattern is preferred as a target.
class ZEDOBJPARAM_API AxTargetPriorityEntry : public AxRecordOf<AxTargetPriorityEntry, "AxTargetPriorityEntry">
{
public:
    using AxRecordOf::AxRecordOf;
    AxTargetPriorityEntry();
    AxTargetPriorityEntry(AxSymbolString name, AxTargetPriorityEntry const& other, AxReaderWriterRegistry* registry);
    AxTargetPriorityEntry(AxTargetPriorityEntry const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxTargetPriorityEntry() override;
    AxTargetPriorityEntry& operator=(AxTargetPriorityEntry const& other);

    AxEntityType const& entityType() const { return myEntityType.value(); }
    void setEntityType(AxEntityType const& type);
    int priority() const { return myPriority.value(); }
    void setPriority(int priority);

private:
    AxRwEntityType myEntityType{{"entity-type", "", "The target's object type, or a pattern."}, registry()};
    AxRwInt myPriority{{"priority", "", "A greater number is preferred."}, registry()};
};
