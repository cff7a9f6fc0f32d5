#pragma once

#include "AxDescriptorOf.h"
#include "AxObjectSensorDescriptor.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"

/// Warns of nuclear, biological and chemical contamination, each within its own range.
class ZEDOBJPARAM_API AxNbcSensorDescriptor
    : public AxDescriptorOf<AxNbcSensorDescriptor, AxObjectSensorDescriptor, "nbc-sensor-descriptor">
{
public:
    AxNbcSensorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxNbcSensorDescriptor(AxNbcSensorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxNbcSensorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxNbcSensorDescriptor() override;

    virtual bool detectNuclear() const { return myDetectNuclear; }
    virtual void setDetectNuclear(bool detect) { assignSpecified(myDetectNuclear, detect); }
    virtual double rangeNuclear() const { return myRangeNuclear; }
    virtual void setRangeNuclear(double range) { assignSpecified(myRangeNuclear, range); }
    virtual bool detectBiological() const { return myDetectBiological; }
    virtual void setDetectBiological(bool detect) { assignSpecified(myDetectBiological, detect); }
    virtual double rangeBiological() const { return myRangeBiological; }
    virtual void setRangeBiological(double range) { assignSpecified(myRangeBiological, range); }
    virtual bool detectChemical() const { return myDetectChemical; }
    virtual void setDetectChemical(bool detect) { assignSpecified(myDetectChemical, detect); }
    virtual double rangeChemical() const { return myRangeChemical; }
    virtual void setRangeChemical(double range) { assignSpecified(myRangeChemical, range); }

private:
    AxRwBoolean myDetectNuclear{{"detect-nuclear", "", "Whether nuclear contamination is noticed."}, true, registry()};
    AxRwReal myRangeNuclear{
        {"range-nuclear", "m", "Distance from which nuclear contamination is noticed.", axNotNegative},
        1000.0,
        registry()};
    AxRwBoolean myDetectBiological{
        {"detect-biological", "", "Whether biological contamination is noticed."}, true, registry()};
    AxRwReal myRangeBiological{
        {"range-biological", "m", "Distance from which biological contamination is noticed.", axNotNegative},
        1000.0,
        registry()};
    AxRwBoolean myDetectChemical{
        {"detect-chemical", "", "Whether chemical contamination is noticed."}, true, registry()};
    AxRwReal myRangeChemical{
        {"range-chemical", "m", "Distance from which chemical contamination is noticed.", axNotNegative},
        1000.0,
        registry()};
};
