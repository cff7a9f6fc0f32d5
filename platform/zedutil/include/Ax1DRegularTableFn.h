#pragma once

#include "AxNLengthRealVector.h"
#include "AxRecordOf.h"
#include "AxRwReal.h"

/// A function of one variable given by its values at equal steps.
class ZEDOBJPARAM_API Ax1DRegularTableFn : public AxRecordOf<Ax1DRegularTableFn, "Ax1DRegularTableFn">
{
public:
    using AxRecordOf::AxRecordOf;
    Ax1DRegularTableFn(Ax1DRegularTableFn const& other, AxReaderWriterRegistry* registry = nullptr);
    ~Ax1DRegularTableFn() override;
    Ax1DRegularTableFn& operator=(Ax1DRegularTableFn const& other);

    double xMin() const { return myXMin.value(); }
    void setXMin(double x) { assignSpecified(myXMin, x); }
    double xStep() const { return myXStep.value(); }
    void setXStep(double step) { assignSpecified(myXStep, step); }
    AxNLengthRealVector const& values() const { return myValues; }
    AxNLengthRealVector& values() { return myValues; }

    /// Linear between the samples, constant outside; 0.0 without samples. A step of 0 or less makes the table count as
    /// empty, which is reported.
    double evaluate(double x) const;

private:
    AxRwReal myXMin{{"x-min", "", "Where the first value stands."}, 0.0, registry()};
    AxRwReal myXStep{{"x-step", "", "Distance from one value to the next.", {0.0, axUnbounded}}, 1.0, registry()};
    AxNLengthRealVector myValues{{"values", "", "Values at equal steps."}, registry()};
};
