#pragma once

#include "AxActiveSonarSystemEntry.h"
#include "AxDescriptorOf.h"
#include "AxPassiveSonarSensorDescriptor.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// Detects objects by the echoes of its own pings, which others can hear. Silent unless told to ping.
class ZEDOBJPARAM_API AxActiveSonarSensorDescriptor
    : public AxDescriptorOf<AxActiveSonarSensorDescriptor, AxPassiveSonarSensorDescriptor,
                            "active-sonar-sensor-descriptor">
{
public:
    AxActiveSonarSensorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxActiveSonarSensorDescriptor(AxActiveSonarSensorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxActiveSonarSensorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxActiveSonarSensorDescriptor() override;

    double detectionPeriod() const override { return myDetectionPeriod; }
    void setDetectionPeriod(double period) override { assignSpecified(myDetectionPeriod, period); }
    virtual bool publishActiveSonarSystem() const { return myPublishActiveSonarSystem; }
    virtual void setPublishActiveSonarSystem(bool publish) { assignSpecified(myPublishActiveSonarSystem, publish); }
    virtual AxActiveSonarSystemEntry const& activeSonarSystem() const { return myActiveSonarSystem; }
    virtual AxActiveSonarSystemEntry& activeSonarSystem() { return myActiveSonarSystem; }
    virtual bool activeByDefault() const { return myActiveByDefault; }
    virtual void setActiveByDefault(bool active) { assignSpecified(myActiveByDefault, active); }

private:
    AxRwReal myDetectionPeriod{
        {"detection-period", "s", "Time between two pings; 0: every tick.", axNotNegative}, 10.0, registry()};
    AxRwBoolean myPublishActiveSonarSystem{
        {"publish-active-sonar-system", "", "Whether other applications are told the pings."}, true, registry()};
    AxActiveSonarSystemEntry myActiveSonarSystem{
        {"active-sonar-system", "", "Acoustic system and beams with which the sonar pings."}, registry()};
    AxRwBoolean myActiveByDefault{
        {"active-by-default", "", "Whether the sonar pings from the start; otherwise it waits for the order."},
        registry()};
};
