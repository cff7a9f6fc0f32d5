#pragma once

#include "AxDescriptorOf.h"
#include "AxEmitterSystemEntry.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"
#include "AxSignatureObjectSensorDescriptor.h"

/// Detects objects by their radar signature and radiates while it looks, so that others can hear it.
class ZEDOBJPARAM_API AxRadarObjectSensorDescriptor
    : public AxDescriptorOf<AxRadarObjectSensorDescriptor, AxSignatureObjectSensorDescriptor,
                            "radar-signature-sensor-descriptor">
{
public:
    AxRadarObjectSensorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxRadarObjectSensorDescriptor(AxRadarObjectSensorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxRadarObjectSensorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxRadarObjectSensorDescriptor() override;

    virtual bool publishEmitterSystem() const { return myPublishEmitterSystem; }
    virtual void setPublishEmitterSystem(bool publish) { assignSpecified(myPublishEmitterSystem, publish); }
    virtual AxEmitterSystemEntry const& emitterSystem() const { return myEmitterSystem; }
    virtual AxEmitterSystemEntry& emitterSystem() { return myEmitterSystem; }
    virtual double jammingDefenseFactor() const { return myJammingDefenseFactor; }
    virtual void setJammingDefenseFactor(double factor) { assignSpecified(myJammingDefenseFactor, factor); }

private:
    AxRwBoolean myPublishEmitterSystem{
        {"publish-emitter-system", "", "Whether other applications are told the radar's emissions."}, true, registry()};
    AxEmitterSystemEntry myEmitterSystem{{"emitter-system", "", "Emitter and beams with which the radar looks."},
                                         registry()};
    AxRwReal myJammingDefenseFactor{{"jamming-defense-factor", "",
                                     "Multiplier of the resistance to jammers; 1: no special protection.",
                                     axNotNegative},
                                    1.0,
                                    registry()};
};
