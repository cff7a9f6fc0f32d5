#pragma once

#include "AxDescriptorOf.h"
#include "AxRwInt.h"
#include "AxRwObjectTypeList.h"

/// A controller that sets off a scenario event when its object detects something.
class ZEDOBJPARAM_API AxEventTriggerControllerDescriptor
    : public AxDescriptorOf<AxEventTriggerControllerDescriptor, AxComponentDescriptor,
                            "event-trigger-controller-descriptor">
{
public:
    AxEventTriggerControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxEventTriggerControllerDescriptor(AxEventTriggerControllerDescriptor const& other,
                                       AxReaderWriterRegistry* registry)
        : AxEventTriggerControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxEventTriggerControllerDescriptor() override;

    virtual int detectionLevelToTrigger() const { return myDetectionLevelToTrigger; }
    virtual void setDetectionLevelToTrigger(int level) { assignSpecified(myDetectionLevelToTrigger, level); }
    virtual AxRwObjectTypeList const& objectTypesToDetect() const { return myObjectTypesToDetect; }
    virtual AxRwObjectTypeList& objectTypesToDetect() { return myObjectTypesToDetect; }

private:
    AxRwInt myDetectionLevelToTrigger{{"detection-level-to-trigger",
                                       "",
                                       "Level of detection that sets the event off; 1: detected, 4: identified.",
                                       {0.0, 4.0}},
                                      1,
                                      registry()};
    AxRwObjectTypeList myObjectTypesToDetect{
        {"object-types-to-detect", "", "Patterns of what sets the event off; empty: any type."}, registry()};
};
