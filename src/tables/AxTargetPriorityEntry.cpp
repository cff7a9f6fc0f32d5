#include "AxTargetPriorityEntry.h"

#include "AxTargetPriorityList.h"

AxTargetPriorityEntry::AxTargetPriorityEntry() : AxTargetPriorityEntry(AxTargetPriorityList::elementWord(), nullptr) {}

AxTargetPriorityEntry::AxTargetPriorityEntry(AxSymbolString name, AxTargetPriorityEntry const& other,
                                             AxReaderWriterRegistry* registry)
    : AxTargetPriorityEntry(name, registry)
{
    assign(other);
}

AxTargetPriorityEntry::AxTargetPriorityEntry(AxTargetPriorityEntry const& other, AxReaderWriterRegistry* registry)
    : AxTargetPriorityEntry(other.AxReaderWriter::name(), other, registry)
{
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
