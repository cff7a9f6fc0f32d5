#pragma once

#include "AxAngle.h"
#include "AxDescriptorOf.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// A controller that sweeps a turret to and fro in search of targets while none is tracked.
class ZEDOBJPARAM_API AxTurretScanComponentDescriptor
    : public AxDescriptorOf<AxTurretScanComponentDescriptor, AxComponentDescriptor, "turret-scan-component-descriptor">
{
public:
    AxTurretScanComponentDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxTurretScanComponentDescriptor(AxTurretScanComponentDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxTurretScanComponentDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxTurretScanComponentDescriptor() override;

    virtual double scanRate() const { return myScanRate; }
    virtual void setScanRate(double rate) { assignSpecified(myScanRate, rate); }
    virtual double minimumScanWidth() const { return myMinimumScanWidth; }
    virtual void setMinimumScanWidth(double width) { assignSpecified(myMinimumScanWidth, width); }
    virtual bool scanSor() const { return myScanSor; }
    virtual void setScanSor(bool scan) { assignSpecified(myScanSor, scan); }

private:
    AxRwReal myScanRate{{"scan-rate", "rad/s", "Speed of the sweep.", axNotNegative}, axRadians(10.0), registry()};
    AxRwReal myMinimumScanWidth{
        {"minimum-scan-width", "rad", "Narrowest sector that is swept, as full width.", axFullTurn},
        axRadians(30.0),
        registry()};
    AxRwBoolean myScanSor{
        {"scan-sor", "", "Whether the sweep covers the object's sector of responsibility."}, true, registry()};
};
