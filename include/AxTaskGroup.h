#pragma once

#include "AxRecordOf.h"
#include "AxRwNLengthStringVector.h"
#include "AxRwString.h"

/// Tasks of which an object may run only one at a time.
class ZEDOBJPARAM_API AxTaskGroup : public AxRecordOf<AxTaskGroup, "AxTaskGroup">
{
public:
    using AxRecordOf::AxRecordOf;
    AxTaskGroup(AxString const& name, AxTaskGroup const& other, AxReaderWriterRegistry* registry);
    AxTaskGroup(AxTaskGroup const& other);
    ~AxTaskGroup() override;
    AxTaskGroup& operator=(AxTaskGroup const& other);

    virtual AxString const& groupName() const { return myGroupName.value(); }
    virtual void setGroupName(AxString const& name) { assignSpecified(myGroupName, name); }
    virtual AxRwNLengthStringVector& taskNames() { return myTaskNames; }
    virtual AxRwNLengthStringVector const& taskNames() const { return myTaskNames; }

private:
    AxRwString myGroupName{{"group-name", "", "What the group is called."}, registry()};
    AxRwNLengthStringVector myTaskNames{{"task-names", "", "Tasks that exclude each other."}, registry()};
};
