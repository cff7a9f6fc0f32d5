#pragma once

#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwReal.h"

/// A controller that takes its object aboard a carrier and off again. It asks the carrier for a slot and asks again
/// when no answer comes.
class ZEDOBJPARAM_API AxEmbarkationDescriptor
    : public AxDescriptorOf<AxEmbarkationDescriptor, AxComponentDescriptor, "embarkation-descriptor">
{
public:
    AxEmbarkationDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxEmbarkationDescriptor(AxEmbarkationDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxEmbarkationDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxEmbarkationDescriptor() override;

    virtual double responseTimeout() const { return myResponseTimeout; }
    virtual void setResponseTimeout(double timeout) { assignSpecified(myResponseTimeout, timeout); }
    virtual int responseRetries() const { return myResponseRetries; }
    virtual void setResponseRetries(int retries) { assignSpecified(myResponseRetries, retries); }
    virtual bool stopAtEmbarkationPoint() const { return myStopAtEmbarkationPoint; }
    virtual void setStopAtEmbarkationPoint(bool stop) { assignSpecified(myStopAtEmbarkationPoint, stop); }

private:
    AxRwReal myResponseTimeout{
        {"response-timeout", "s", "Time to wait for the carrier's answer.", axNotNegative}, 1.0, registry()};
    AxRwInt myResponseRetries{
        {"response-retries", "", "Times that an unanswered request is sent again.", axNotNegative}, 1, registry()};
    AxRwBoolean myStopAtEmbarkationPoint{
        {"stop-at-embarkation-point", "", "Whether the object halts at the embarkation point before it goes aboard."},
        true,
        registry()};
};
