#pragma once

#include "AxDescriptorOf.h"
#include "AxEmitterComponentDescriptor.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// Radiates to keep hostile radars from seeing. Each radar meets it with its own jamming defence.
class ZEDOBJPARAM_API AxJammerEmitterDescriptor
    : public AxDescriptorOf<AxJammerEmitterDescriptor, AxEmitterComponentDescriptor, "jammer-emitter-descriptor">
{
public:
    AxJammerEmitterDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxJammerEmitterDescriptor(AxJammerEmitterDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxJammerEmitterDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxJammerEmitterDescriptor() override;

    virtual double jammingStrength() const { return myJammingStrength; }
    virtual void setJammingStrength(double strength) { assignSpecified(myJammingStrength, strength); }
    virtual double jammingRange() const { return myJammingRange; }
    virtual void setJammingRange(double range) { assignSpecified(myJammingRange, range); }
    virtual AxString const& jammerType() const { return myJammerType.value(); }
    virtual void setJammerType(AxString const& type) { assignSpecified(myJammerType, type); }
    virtual bool publishEmitterSystem() const { return myPublishEmitterSystem; }
    virtual void setPublishEmitterSystem(bool publish) { assignSpecified(myPublishEmitterSystem, publish); }
    virtual AxString const& availablePostures() const { return myAvailablePostures.value(); }
    virtual void setAvailablePostures(AxString const& postures) { assignSpecified(myAvailablePostures, postures); }

private:
    AxRwReal myJammingStrength{
        {"jamming-strength", "", "Multiplier of the jamming effect on each radar in range.", axNotNegative},
        1.0,
        registry()};
    AxRwReal myJammingRange{
        {"jamming-range", "m", "Distance within which radars are jammed.", axNotNegative}, 20000.0, registry()};
    AxRwString myJammerType{
        {"jammer-type", "", "\"noise\" hides targets, \"deception\" shows false ones."}, "noise", registry()};
    AxRwBoolean myPublishEmitterSystem{
        {"publish-emitter-system", "", "Whether other applications are told the jammer's emissions."},
        true,
        registry()};
    AxRwString myAvailablePostures{{"available-postures", "", "Postures of a unit in which it jams; empty: all."},
                                   registry()};
};
