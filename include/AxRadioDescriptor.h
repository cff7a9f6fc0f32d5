#pragma once

#include "AxCommModelDescriptorList.h"
#include "AxRecordOf.h"
#include "AxRwEntityType.h"
#include "AxRwInt.h"
#include "AxRwOffsetVector.h"
#include "AxRwReal.h"

/// One radio of an object, known by its name, as the protocol describes a transmitter (IEEE 1278.1).
class ZEDOBJPARAM_API AxRadioDescriptor : public AxRecordOf<AxRadioDescriptor, "AxRadioDescriptor">
{
public:
    using AxRecordOf::AxRecordOf;
    ~AxRadioDescriptor() override;

    virtual AxEntityType const& radioType() const { return myRadioType.value(); }
    virtual void setRadioType(AxEntityType const& type) { assignSpecified(myRadioType, type); }
    virtual int radioId() const { return myRadioId; }
    virtual void setRadioId(int id) { assignSpecified(myRadioId, id); }
    virtual double frequency() const { return myFrequency; }
    virtual void setFrequency(double hertz) { assignSpecified(myFrequency, hertz); }
    virtual double bandwidth() const { return myBandwidth; }
    virtual void setBandwidth(double hertz) { assignSpecified(myBandwidth, hertz); }
    virtual double power() const { return myPower; }
    virtual void setPower(double dbm) { assignSpecified(myPower, dbm); }
    virtual int modulationMajor() const { return myModulationMajor; }
    virtual void setModulationMajor(int modulation) { assignSpecified(myModulationMajor, modulation); }
    virtual int modulationDetail() const { return myModulationDetail; }
    virtual void setModulationDetail(int detail) { assignSpecified(myModulationDetail, detail); }
    virtual int modulationSystem() const { return myModulationSystem; }
    virtual void setModulationSystem(int system) { assignSpecified(myModulationSystem, system); }
    virtual int cryptoSystem() const { return myCryptoSystem; }
    virtual void setCryptoSystem(int system) { assignSpecified(myCryptoSystem, system); }
    virtual int cryptoKey() const { return myCryptoKey; }
    virtual void setCryptoKey(int key) { assignSpecified(myCryptoKey, key); }
    virtual AxVector64 const& antennaOffset() const { return myAntennaOffset.value(); }
    virtual void setAntennaOffset(AxVector64 const& offset) { assignSpecified(myAntennaOffset, offset); }
    /// Empty: every message arrives.
    virtual AxCommModelDescriptorList& commModels() { return myCommModels; }
    virtual AxCommModelDescriptorList const& commModels() const { return myCommModels; }

private:
    AxRwEntityType myRadioType{{"radio-type", "", "Entity type of the radio (kind 7)."}, registry()};
    AxRwInt myRadioId{{"radio-id", "", "Number of the radio; 0: by its position in the list, from 1.", {0.0, 65535.0}},
                      registry()};
    AxRwReal myFrequency{{"frequency", "Hz", "Centre frequency.", {0.0, axUnbounded}}, registry()};
    AxRwReal myBandwidth{{"bandwidth", "Hz", "Width of the band.", {0.0, axUnbounded}}, registry()};
    AxRwReal myPower{{"power", "dBm", "Average power that is transmitted."}, registry()};
    AxRwInt myModulationMajor{{"modulation-major", "", "Major modulation.", {0.0, 65535.0}}, registry()};
    AxRwInt myModulationDetail{{"modulation-detail", "", "Detail of the modulation.", {0.0, 65535.0}}, registry()};
    AxRwInt myModulationSystem{{"modulation-system", "", "Radio system that the modulation fits.", {0.0, 65535.0}},
                               registry()};
    AxRwInt myCryptoSystem{{"crypto-system", "", "Encryption; 0: none.", {0.0, 65535.0}}, registry()};
    AxRwInt myCryptoKey{{"crypto-key", "", "Number of the key.", {0.0, 65535.0}}, registry()};
    AxRwOffsetVector myAntennaOffset{{"antenna-offset", "m", "Place of the antenna in the body frame."}, registry()};
    AxCommModelDescriptorList myCommModels{
        {"comm-models", "", "What decides whether a message arrives; empty: all do."}, registry()};
};
