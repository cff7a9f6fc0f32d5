#pragma once

#include "AxDescriptorOf.h"
#include "AxObjectSensorDescriptor.h"
#include "AxRwReal.h"

/// Detects engineering objects such as minefields, obstacles and breaches, concealed ones only by chance.
class ZEDOBJPARAM_API AxEngineeringObjectSensorDescriptor
    : public AxDescriptorOf<AxEngineeringObjectSensorDescriptor, AxObjectSensorDescriptor,
                            "engineering-object-sensor-descriptor">
{
public:
    AxEngineeringObjectSensorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxEngineeringObjectSensorDescriptor(AxEngineeringObjectSensorDescriptor const& other,
                                        AxReaderWriterRegistry* registry)
        : AxEngineeringObjectSensorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxEngineeringObjectSensorDescriptor() override;

    virtual double rangeEngineeringObjects() const { return myRangeEngineeringObjects; }
    virtual void setRangeEngineeringObjects(double range) { assignSpecified(myRangeEngineeringObjects, range); }
    virtual double probabilityToDetectConcealed() const { return myProbabilityToDetectConcealed; }
    virtual void setProbabilityToDetectConcealed(double probability)
    {
        assignSpecified(myProbabilityToDetectConcealed, probability);
    }

private:
    AxRwReal myRangeEngineeringObjects{
        {"range-engineering-objects", "m", "Distance from which engineering objects are noticed.", axNotNegative},
        500.0,
        registry()};
    AxRwReal myProbabilityToDetectConcealed{{"probability-to-detect-concealed", "",
                                             "Probability that a concealed one within range is noticed.", axFraction},
                                            0.5,
                                            registry()};
};
