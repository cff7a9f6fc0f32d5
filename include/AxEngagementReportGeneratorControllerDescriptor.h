#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// Reports by radio the engagements of the object and passes on those of its subordinates.
class ZEDOBJPARAM_API AxEngagementReportGeneratorControllerDescriptor
    : public AxDescriptorOf<AxEngagementReportGeneratorControllerDescriptor, AxComponentDescriptor,
                            "engagement-report-generator-controller-descriptor">
{
public:
    AxEngagementReportGeneratorControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxEngagementReportGeneratorControllerDescriptor(AxEngagementReportGeneratorControllerDescriptor const& other,
                                                    AxReaderWriterRegistry* registry)
        : AxEngagementReportGeneratorControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxEngagementReportGeneratorControllerDescriptor() override;

    virtual bool forwardSubordinateReports() const { return myForwardSubordinateReports; }
    virtual void setForwardSubordinateReports(bool forward) { assignSpecified(myForwardSubordinateReports, forward); }
    virtual double reportResendPeriod() const { return myReportResendPeriod; }
    virtual void setReportResendPeriod(double period) { assignSpecified(myReportResendPeriod, period); }
    virtual AxString const& radioName() const { return myRadioName.value(); }
    virtual void setRadioName(AxString const& name) { assignSpecified(myRadioName, name); }

private:
    AxRwBoolean myForwardSubordinateReports{
        {"forward-subordinate-reports", "", "Whether reports of subordinates are passed on."}, true, registry()};
    AxRwReal myReportResendPeriod{
        {"report-resend-period", "s", "Time after which an unchanged report is sent again.", axNotNegative},
        60.0,
        registry()};
    AxRwString myRadioName{{"radio-name", "", "Radio that sends the reports; empty: the first one."}, registry()};
};
