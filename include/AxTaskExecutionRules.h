#pragma once

#include "AxRecordOf.h"
#include "AxRwBoolean.h"
#include "AxRwTemplatedListPtr.h"
#include "AxTaskGroup.h"

/// Which tasks an object may run side by side.
class ZEDOBJPARAM_API AxTaskExecutionRules : public AxRecordOf<AxTaskExecutionRules, "AxTaskExecutionRules">
{
public:
    using GroupList = AxRwTemplatedListPtr<AxTaskGroup, 1>;

    using AxRecordOf::AxRecordOf;
    AxTaskExecutionRules(AxString const& name, AxTaskExecutionRules const& other, AxReaderWriterRegistry* registry);
    AxTaskExecutionRules(AxTaskExecutionRules const& other);
    ~AxTaskExecutionRules() override;
    AxTaskExecutionRules& operator=(AxTaskExecutionRules const& other);

    /// Every task excludes every other one.
    virtual bool allTasksExclusive() const { return myAllTasksExclusive; }
    virtual void setAllTasksExclusive(bool exclusive) { assignSpecified(myAllTasksExclusive, exclusive); }
    virtual GroupList& mutuallyExclusiveTaskGroupList() { return myTaskGroups; }
    virtual GroupList const& mutuallyExclusiveTaskGroupList() const { return myTaskGroups; }
    /// The first group of that name, null when there is none.
    virtual AxTaskGroup* findTaskGroup(AxString const& groupName) const;
    /// The names of all groups that hold the task, in list order.
    virtual std::list<AxString> findGroupsForTask(AxString const& taskName) const;

private:
    AxRwBoolean myAllTasksExclusive{{"all-tasks-exclusive", "", "Whether only one task runs at a time."}, registry()};
    GroupList myTaskGroups{{"mutually-exclusive-task-groups", "", "Groups of tasks that exclude each other."},
                           registry()};
};
