#pragma once

#include "AxDescriptorOf.h"
#include "AxRwReal.h"

/// Sends data of the object that the protocol's entity state does not carry to the other participants: at changes,
/// and again as a heartbeat.
class ZEDOBJPARAM_API AxZedObjectDataMessengerDescriptor
    : public AxDescriptorOf<AxZedObjectDataMessengerDescriptor, AxComponentDescriptor,
                            "zed-object-data-messenger-descriptor">
{
public:
    AxZedObjectDataMessengerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxZedObjectDataMessengerDescriptor(AxZedObjectDataMessengerDescriptor const& other,
                                       AxReaderWriterRegistry* registry)
        : AxZedObjectDataMessengerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxZedObjectDataMessengerDescriptor() override;

    virtual double maxSendInterval() const { return myMaxSendInterval; }
    virtual void setMaxSendInterval(double interval) { assignSpecified(myMaxSendInterval, interval); }
    virtual double minSendInterval() const { return myMinSendInterval; }
    virtual void setMinSendInterval(double interval) { assignSpecified(myMinSendInterval, interval); }

private:
    AxRwReal myMaxSendInterval{
        {"max-send-interval", "s", "Heartbeat: data is sent again after this time even when unchanged.", axNotNegative},
        5.0,
        registry()};
    AxRwReal myMinSendInterval{
        {"min-send-interval", "s", "Shortest time between two messages, however often data changes.", axNotNegative},
        0.5,
        registry()};
};
