#include "AxTargetPriorityEntry.h"

#include "AxTargetPriorityList.h"

AxTargetPriorityEntry::AxTargetPriorityEntry() : AxTargetPriorityEntry(AxTargetPriorityList::elementWord(), nullptr) {}

AxTargetPriorityEntry::AxTargetPriorityEntry(AxTargetPriorityEntry const& other, AxReaderWriterRegistry* registry)
    : AxTargetPriorityEntry(other.AxReaderWriter::name(), registry)
{
    assign(other);
}

AxTargetPriorityEntry::~AxTargetPriorityEntry() = default;

AxTargetPriorityEntry& AxTargetPriorityEntry::operator=(AxTargetPriorityEntry const& other)
{
    assign(other);
    return *this;
}

void AxTargetPriorityEntry::setEntityType(AxEntityType const& type)
{
    assignSpecified(myEntityType, type);
}

void AxTargetPriorityEntry::setPriority(int priority)
{
    assignSpecified(myPriority, priority);
}
