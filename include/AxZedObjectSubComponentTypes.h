#pragma once

#include "AxRecordOf.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// The software that runs one object: which implementation of each part, and how often two of them tick. An object's
/// record holds one set for where it is simulated and one for its remote representation. An empty type name leaves the
/// choice to the engine, as a negative period does.
class ZEDOBJPARAM_API AxZedObjectSubComponentTypes
    : public AxRecordOf<AxZedObjectSubComponentTypes, "AxZedObjectSubComponentTypes">
{
public:
    using AxRecordOf::AxRecordOf;
    AxZedObjectSubComponentTypes();
    AxZedObjectSubComponentTypes(AxString const& name, AxZedObjectSubComponentTypes const& other,
                                 AxReaderWriterRegistry* registry);
    AxZedObjectSubComponentTypes(AxZedObjectSubComponentTypes const& other);
    ~AxZedObjectSubComponentTypes() override;
    AxZedObjectSubComponentTypes& operator=(AxZedObjectSubComponentTypes const& other);

    virtual AxString const& simStateRepositoryType() const { return myStateRepository.value(); }
    virtual void setSimStateRepositoryType(AxString const& type) { assignSpecified(myStateRepository, type); }
    virtual double stateRepMinTickPeriod() const { return myStateRepMinTickPeriod; }
    virtual void setStateRepMinTickPeriod(double period) { assignSpecified(myStateRepMinTickPeriod, period); }
    virtual double stateRepMinTickPeriodVariance() const { return myStateRepMinTickPeriodVariance; }
    virtual void setStateRepMinTickPeriodVariance(double variance)
    {
        assignSpecified(myStateRepMinTickPeriodVariance, variance);
    }
    virtual AxString const& networkInterfaceType() const { return myNetInterface.value(); }
    virtual void setNetworkInterfaceType(AxString const& type) { assignSpecified(myNetInterface, type); }
    virtual double netIfMinTickPeriod() const { return myNetIfMinTickPeriod; }
    virtual void setNetIfMinTickPeriod(double period) { assignSpecified(myNetIfMinTickPeriod, period); }
    virtual double netIfMinTickPeriodVariance() const { return myNetIfMinTickPeriodVariance; }
    virtual void setNetIfMinTickPeriodVariance(double variance)
    {
        assignSpecified(myNetIfMinTickPeriodVariance, variance);
    }
    virtual AxString const& taskManagerType() const { return myTaskManager.value(); }
    virtual void setTaskManagerType(AxString const& type) { assignSpecified(myTaskManager, type); }
    virtual AxString const& componentManagerType() const { return myComponentManager.value(); }
    virtual void setComponentManagerType(AxString const& type) { assignSpecified(myComponentManager, type); }
    virtual AxString const& planManagerType() const { return myPlanManager.value(); }
    virtual void setPlanManagerType(AxString const& type) { assignSpecified(myPlanManager, type); }
    virtual AxString const& navInterfaceType() const { return myNavInterface.value(); }
    virtual void setNavInterfaceType(AxString const& type) { assignSpecified(myNavInterface, type); }

private:
    AxRwString myStateRepository{{"state-repository", "", "Type of the state repository."}, registry()};
    AxRwReal myStateRepMinTickPeriod{
        {"state-repository-min-tick-period", "s", "Shortest time between its ticks; negative: not given."},
        -1.0,
        registry()};
    AxRwReal myStateRepMinTickPeriodVariance{
        {"state-repository-min-tick-period-variance", "s", "Spread of that time; negative: not given."},
        -1.0,
        registry()};
    AxRwString myNetInterface{{"net-interface", "", "Type of the network interface."}, registry()};
    AxRwReal myNetIfMinTickPeriod{
        {"net-interface-min-tick-period", "s", "Shortest time between its ticks; negative: not given."},
        -1.0,
        registry()};
    AxRwReal myNetIfMinTickPeriodVariance{
        {"net-interface-min-tick-period-variance", "s", "Spread of that time; negative: not given."}, -1.0, registry()};
    AxRwString myTaskManager{{"task-manager", "", "Type of the task manager."}, registry()};
    AxRwString myComponentManager{{"component-manager", "", "Type of the component manager."}, registry()};
    AxRwString myPlanManager{{"plan-manager", "", "Type of the plan manager."}, registry()};
    AxRwString myNavInterface{{"nav-interface", "", "Type of the navigation interface."}, registry()};
};
