#pragma once

#include "AxRecordOf.h"
#include "AxRwInt.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxRwUnsigned.h"

#include <numbers>

/// One beam of an emitter system, as the protocol describes it (IEEE 1278.1, electromagnetic emission).
class ZEDOBJPARAM_API AxEmitterBeamEntry : public AxRecordOf<AxEmitterBeamEntry, "AxEmitterBeamEntry">
{
public:
    using AxRecordOf::AxRecordOf;
    /// Named "beam", as the elements of a system's list are.
    AxEmitterBeamEntry() : AxRecordOf("beam", nullptr) {}
    ~AxEmitterBeamEntry() override;

    virtual int beamNumber() const { return myBeamNumber; }
    virtual void setBeamNumber(int number) { assignSpecified(myBeamNumber, number); }
    virtual int beamParameterIndex() const { return myBeamParameterIndex; }
    virtual void setBeamParameterIndex(int index) { assignSpecified(myBeamParameterIndex, index); }
    virtual int beamFunction() const { return myBeamFunction; }
    virtual void setBeamFunction(int function) { assignSpecified(myBeamFunction, function); }
    virtual AxString const& radarMode() const { return myRadarMode.value(); }
    virtual void setRadarMode(AxString const& mode) { assignSpecified(myRadarMode, mode); }
    virtual double frequency() const { return myFrequency; }
    virtual void setFrequency(double hertz) { assignSpecified(myFrequency, hertz); }
    virtual double frequencyRange() const { return myFrequencyRange; }
    virtual void setFrequencyRange(double hertz) { assignSpecified(myFrequencyRange, hertz); }
    virtual double effectiveRadiatedPower() const { return myEffectiveRadiatedPower; }
    virtual void setEffectiveRadiatedPower(double dbm) { assignSpecified(myEffectiveRadiatedPower, dbm); }
    virtual double pulseRepetitionFrequency() const { return myPulseRepetitionFrequency; }
    virtual void setPulseRepetitionFrequency(double hertz) { assignSpecified(myPulseRepetitionFrequency, hertz); }
    virtual double pulseWidth() const { return myPulseWidth; }
    virtual void setPulseWidth(double microseconds) { assignSpecified(myPulseWidth, microseconds); }
    virtual double azimuthCenter() const { return myAzimuthCenter; }
    virtual void setAzimuthCenter(double radians) { assignSpecified(myAzimuthCenter, radians); }
    virtual double azimuthSweep() const { return myAzimuthSweep; }
    virtual void setAzimuthSweep(double radians) { assignSpecified(myAzimuthSweep, radians); }
    virtual double elevationCenter() const { return myElevationCenter; }
    virtual void setElevationCenter(double radians) { assignSpecified(myElevationCenter, radians); }
    virtual double elevationSweep() const { return myElevationSweep; }
    virtual void setElevationSweep(double radians) { assignSpecified(myElevationSweep, radians); }
    virtual double sweepSync() const { return mySweepSync; }
    virtual void setSweepSync(double percent) { assignSpecified(mySweepSync, percent); }
    virtual unsigned jammingTechnique() const { return myJammingTechnique; }
    virtual void setJammingTechnique(unsigned technique) { assignSpecified(myJammingTechnique, technique); }

private:
    static constexpr double thePi = std::numbers::pi;

    AxRwInt myBeamNumber{
        {"beam-number", "", "Number of the beam; 0: by its position in the list, from 1.", {0.0, 255.0}}, registry()};
    AxRwInt myBeamParameterIndex{
        {"beam-parameter-index", "", "Index of the beam in a database of emitters.", {0.0, 65535.0}}, registry()};
    AxRwInt myBeamFunction{
        {"beam-function", "", "What the beam does; 1 search, 4 tracking, 7 illumination, 12 jamming.", {0.0, 255.0}},
        registry()};
    AxRwString myRadarMode{{"radar-mode", "", "Mode in which the beam radiates; empty: in every mode."}, registry()};
    AxRwReal myFrequency{{"frequency", "Hz", "Centre frequency.", {0.0, axUnbounded}}, registry()};
    AxRwReal myFrequencyRange{{"frequency-range", "Hz", "Width of the band.", {0.0, axUnbounded}}, registry()};
    AxRwReal myEffectiveRadiatedPower{{"effective-radiated-power", "dBm", "Average power that is radiated."},
                                      registry()};
    AxRwReal myPulseRepetitionFrequency{{"pulse-repetition-frequency", "Hz", "Pulses in a second.", {0.0, axUnbounded}},
                                        registry()};
    AxRwReal myPulseWidth{{"pulse-width", "us", "Length of a pulse.", {0.0, axUnbounded}}, registry()};
    AxRwReal myAzimuthCenter{{"azimuth-center", "rad", "Azimuth of the middle of the sweep.", {-thePi, 2.0 * thePi}},
                             registry()};
    AxRwReal myAzimuthSweep{{"azimuth-sweep", "rad", "Half width of the sweep in azimuth.", {0.0, thePi}}, registry()};
    AxRwReal myElevationCenter{
        {"elevation-center", "rad", "Elevation of the middle of the sweep.", {-thePi / 2.0, thePi / 2.0}}, registry()};
    AxRwReal myElevationSweep{{"elevation-sweep", "rad", "Half width of the sweep in elevation.", {0.0, thePi / 2.0}},
                              registry()};
    AxRwReal mySweepSync{{"sweep-sync", "%", "How far the sweep has come at the time of the report.", {0.0, 100.0}},
                         registry()};
    AxRwUnsigned myJammingTechnique{{"jamming-technique", "", "Jamming technique; 0: none."}, registry()};
};
