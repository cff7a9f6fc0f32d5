#include "AxTaskExecutionRules.h"

AxTaskExecutionRules::AxTaskExecutionRules(AxString const& name, AxTaskExecutionRules const& other,
                                           AxReaderWriterRegistry* registry)
    : AxRecordOf(name, registry)
{
    assign(other);
}

AxTaskExecutionRules::AxTaskExecutionRules(AxTaskExecutionRules const& other)
    : AxTaskExecutionRules(other.AxReaderWriter::name().string(), other, nullptr)
{
}

AxTaskExecutionRules::~AxTaskExecutionRules() = default;

AxTaskExecutionRules& AxTaskExecutionRules::operator=(AxTaskExecutionRules const& other)
{
    assign(other);
    return *this;
}

AxTaskGroup* AxTaskExecutionRules::findTaskGroup(AxString const& groupName) const
{
    for (AxTaskGroup* group : myTaskGroups)
    {
        if (group->groupName() == groupName)
        {
            return group;
        }
    }
    return nullptr;
}

std::list<AxString> AxTaskExecutionRules::findGroupsForTask(AxString const& taskName) const
{
    std::list<AxString> names;
    for (AxTaskGroup const* group : myTaskGroups)
    {
        if (group->taskNames().contains(taskName))
        {
            names.push_back(group->groupName());
        }
    }
    return names;
}
