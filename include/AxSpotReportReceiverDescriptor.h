#pragma once

#include "AxDescriptorOf.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// Receives spot reports by radio and forgets them when they are too old.
class ZEDOBJPARAM_API AxSpotReportReceiverDescriptor
    : public AxDescriptorOf<AxSpotReportReceiverDescriptor, AxComponentDescriptor, "spot-report-receiver-descriptor">
{
public:
    AxSpotReportReceiverDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxSpotReportReceiverDescriptor(AxSpotReportReceiverDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxSpotReportReceiverDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxSpotReportReceiverDescriptor() override;

    virtual double spotReportAgeLimit() const { return mySpotReportAgeLimit; }
    virtual void setSpotReportAgeLimit(double limit) { assignSpecified(mySpotReportAgeLimit, limit); }
    virtual AxString const& radioName() const { return myRadioName.value(); }
    virtual void setRadioName(AxString const& name) { assignSpecified(myRadioName, name); }

private:
    AxRwReal mySpotReportAgeLimit{
        {"spot-report-age-limit", "s", "Age from which a report is forgotten.", axNotNegative}, 300.0, registry()};
    AxRwString myRadioName{{"radio-name", "", "Radio that receives the reports; empty: any radio."}, registry()};
};
