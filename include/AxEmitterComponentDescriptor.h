#pragma once

#include "AxDescriptorOf.h"
#include "AxEmitterSystemEntry.h"
#include "AxRwBoolean.h"
#include "AxRwString.h"
#include "AxRwVector.h"

/// Radiates the electromagnetic emissions of the object's radars and similar devices. Base of the jammers.
class ZEDOBJPARAM_API AxEmitterComponentDescriptor
    : public AxDescriptorOf<AxEmitterComponentDescriptor, AxComponentDescriptor, "emitter-component-descriptor">
{
public:
    AxEmitterComponentDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxEmitterComponentDescriptor(AxEmitterComponentDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxEmitterComponentDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxEmitterComponentDescriptor() override;

    virtual AxVector64 const& mountLocation() const { return myMountLocation.value(); }
    virtual void setMountLocation(AxVector64 const& location) { assignSpecified(myMountLocation, location); }
    virtual bool onAtStart() const { return myOnAtStart; }
    virtual void setOnAtStart(bool on) { assignSpecified(myOnAtStart, on); }
    virtual AxString const& radarModeAtStart() const { return myRadarModeAtStart.value(); }
    virtual void setRadarModeAtStart(AxString const& mode) { assignSpecified(myRadarModeAtStart, mode); }
    virtual bool useHighDensityTrackingAtStart() const { return myUseHighDensityTrackingAtStart; }
    virtual void setUseHighDensityTrackingAtStart(bool use) { assignSpecified(myUseHighDensityTrackingAtStart, use); }
    virtual bool useHighDensityJammingAtStart() const { return myUseHighDensityJammingAtStart; }
    virtual void setUseHighDensityJammingAtStart(bool use) { assignSpecified(myUseHighDensityJammingAtStart, use); }
    virtual AxEmitterSystemEntry const& emitterSystem() const { return myEmitterSystem; }
    virtual AxEmitterSystemEntry& emitterSystem() { return myEmitterSystem; }

private:
    AxRwVector myMountLocation{{"mount-location", "m", "Place of the emitter in the body frame."}, registry()};
    AxRwBoolean myOnAtStart{{"on-at-start", "", "Whether the emitter radiates from the start."}, true, registry()};
    AxRwString myRadarModeAtStart{
        {"radar-mode-at-start", "", "Mode whose beams radiate at first; empty: beams of every mode."}, registry()};
    AxRwBoolean myUseHighDensityTrackingAtStart{
        {"use-high-density-tracking-at-start", "",
         "Whether tracking beams start with their high-density flag instead of listed targets."},
        registry()};
    AxRwBoolean myUseHighDensityJammingAtStart{
        {"use-high-density-jamming-at-start", "",
         "Whether jamming beams start with their high-density flag instead of listed targets."},
        registry()};
    AxEmitterSystemEntry myEmitterSystem{{"emitter-system", "", "Emitter and its beams."}, registry()};
};
