#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwObjectTypeList.h"
#include "AxRwReal.h"
#include "AxRwSpotReportDeltaCheckList.h"
#include "AxRwString.h"

/// Reports what the object detects, by radio, to its superior or to everybody, and passes on what its subordinates
/// report.
class ZEDOBJPARAM_API AxSpotReportGeneratorControllerDescriptor
    : public AxDescriptorOf<AxSpotReportGeneratorControllerDescriptor, AxComponentDescriptor,
                            "spot-report-generator-controller-descriptor">
{
public:
    AxSpotReportGeneratorControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxSpotReportGeneratorControllerDescriptor(AxSpotReportGeneratorControllerDescriptor const& other,
                                              AxReaderWriterRegistry* registry)
        : AxSpotReportGeneratorControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxSpotReportGeneratorControllerDescriptor() override;

    virtual bool forwardSubordinateReports() const { return myForwardSubordinateReports; }
    virtual void setForwardSubordinateReports(bool forward) { assignSpecified(myForwardSubordinateReports, forward); }
    virtual double reportResendPeriod() const { return myReportResendPeriod; }
    virtual void setReportResendPeriod(double period) { assignSpecified(myReportResendPeriod, period); }
    virtual AxRwObjectTypeList const& objectTypesToSpotReport() const { return myObjectTypesToSpotReport; }
    virtual AxRwObjectTypeList& objectTypesToSpotReport() { return myObjectTypesToSpotReport; }
    virtual bool sendSpotReportsOnOwnForce() const { return mySendSpotReportsOnOwnForce; }
    virtual void setSendSpotReportsOnOwnForce(bool send) { assignSpecified(mySendSpotReportsOnOwnForce, send); }
    virtual bool sendSpotReportsOnHostileForces() const { return mySendSpotReportsOnHostileForces; }
    virtual void setSendSpotReportsOnHostileForces(bool send)
    {
        assignSpecified(mySendSpotReportsOnHostileForces, send);
    }
    virtual bool sendSpotReportsOnNeutralForces() const { return mySendSpotReportsOnNeutralForces; }
    virtual void setSendSpotReportsOnNeutralForces(bool send)
    {
        assignSpecified(mySendSpotReportsOnNeutralForces, send);
    }
    virtual bool broadcast() const { return myBroadcast; }
    virtual void setBroadcast(bool broadcast) { assignSpecified(myBroadcast, broadcast); }
    virtual AxString const& radioName() const { return myRadioName.value(); }
    virtual void setRadioName(AxString const& name) { assignSpecified(myRadioName, name); }
    virtual AxRwSpotReportDeltaCheckList const& sendSpotReportsOnMovementDelta() const
    {
        return mySendSpotReportsOnMovementDelta;
    }
    virtual AxRwSpotReportDeltaCheckList& sendSpotReportsOnMovementDelta() { return mySendSpotReportsOnMovementDelta; }
    virtual AxRwSpotReportDeltaCheckList const& sendSpotReportsHeartbeatDelta() const
    {
        return mySendSpotReportsHeartbeatDelta;
    }
    virtual AxRwSpotReportDeltaCheckList& sendSpotReportsHeartbeatDelta() { return mySendSpotReportsHeartbeatDelta; }
    virtual bool sendSpotReportsOnScenarioLoad() const { return mySendSpotReportsOnScenarioLoad; }
    virtual void setSendSpotReportsOnScenarioLoad(bool send) { assignSpecified(mySendSpotReportsOnScenarioLoad, send); }
    virtual bool sendToFrontEndOnly() const { return mySendToFrontEndOnly; }
    virtual void setSendToFrontEndOnly(bool send) { assignSpecified(mySendToFrontEndOnly, send); }

private:
    AxRwBoolean myForwardSubordinateReports{
        {"forward-subordinate-reports", "", "Whether reports of subordinates are passed on."}, true, registry()};
    AxRwReal myReportResendPeriod{
        {"report-resend-period", "s", "Time after which an unchanged report is sent again.", axNotNegative},
        60.0,
        registry()};
    AxRwObjectTypeList myObjectTypesToSpotReport{
        {"object-types-to-spot-report", "", "Patterns of objects that are reported; empty: any type."}, registry()};
    AxRwBoolean mySendSpotReportsOnOwnForce{
        {"send-spot-reports-on-own-force", "", "Whether objects of the own force are reported."}, registry()};
    AxRwBoolean mySendSpotReportsOnHostileForces{
        {"send-spot-reports-on-hostile-forces", "", "Whether objects of hostile forces are reported."},
        true,
        registry()};
    AxRwBoolean mySendSpotReportsOnNeutralForces{
        {"send-spot-reports-on-neutral-forces", "", "Whether objects of neutral forces are reported."}, registry()};
    AxRwBoolean myBroadcast{{"broadcast", "", "Whether everybody receives the reports instead of the superior alone."},
                            registry()};
    AxRwString myRadioName{{"radio-name", "", "Radio that sends the reports; empty: the first one."}, registry()};
    AxRwSpotReportDeltaCheckList mySendSpotReportsOnMovementDelta{
        {"send-spot-reports-on-movement-delta", "m", "Movement of an object, by type, that calls for a new report."},
        registry()};
    AxRwSpotReportDeltaCheckList mySendSpotReportsHeartbeatDelta{
        {"send-spot-reports-heartbeat-delta", "s",
         "Time, by type of object, after which it is reported even if nothing changed."},
        registry()};
    AxRwBoolean mySendSpotReportsOnScenarioLoad{
        {"send-spot-reports-on-scenario-load", "", "Whether objects in sight are reported when a scenario is loaded."},
        registry()};
    AxRwBoolean mySendToFrontEndOnly{
        {"send-to-front-end-only", "", "Whether reports go to the operators' displays and to no simulated object."},
        registry()};
};
