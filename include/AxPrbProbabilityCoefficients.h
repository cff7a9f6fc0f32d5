#pragma once

#include "AxReaderWriter.h"

#include <vector>

/// The probability of one outcome, its name, as a polynomial in range (metres): `(hit -0.0005 1.0)`.
class ZEDOBJPARAM_API AxPrbProbabilityCoefficients : public AxReaderWriter
{
public:
    AxPrbProbabilityCoefficients(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxPrbProbabilityCoefficients(AxString const& name, AxReaderWriterRegistry* registry);
    AxPrbProbabilityCoefficients(char const* name, AxReaderWriterRegistry* registry);
    AxPrbProbabilityCoefficients(AxSymbolString name, AxPrbProbabilityCoefficients const& other,
                                 AxReaderWriterRegistry* registry);
    AxPrbProbabilityCoefficients(AxPrbProbabilityCoefficients const& other);
    ~AxPrbProbabilityCoefficients() override;

    /// Takes the coefficients; the name stays.
    AxPrbProbabilityCoefficients& operator=(AxPrbProbabilityCoefficients const& other);
    bool equals(AxPrbProbabilityCoefficients const& other) const;
    bool operator==(AxPrbProbabilityCoefficients const& other) const { return equals(other); }

    int numCoefficients() const { return static_cast<int>(myCoefficients.size()); }
    /// Coefficients that come in are 0.0; a negative number is taken as 0, one above 1000 as 1000.
    void setNumCoefficients(int number);
    /// The highest power first.
    void setCoefficients(int number, double const* coefficients);
    /// The highest power first; null when there are none.
    double const* coefficients() const { return myCoefficients.empty() ? nullptr : myCoefficients.data(); }
    /// 0.0, and a warning, for an index outside the set.
    double coefficient(int index) const;
    void setCoefficient(int index, double value);

    /// The polynomial at `range`, clamped to 0 to 1; 0.0 when there are no coefficients.
    double probability(double range) const;
    /// How far the polynomial reaches: the constant itself, the root of a line, the larger of the two formulas of a
    /// quadratic, which is not a number when it has no root. 0.0, and a warning, for every other number of
    /// coefficients.
    double solveForMaximum() const;

    using AxReaderWriter::getData;
    using AxReaderWriter::putData;
    AxlObjPtr getData(AxlObjPtr const& items, AxFilenameList const& files, AxBindingsList const& bindings) override;
    void putData(std::string& out, int indent) override;
    void reset() override;
    char const* readerWriterType() const override;

private:
    bool isInSet(int index) const;

    std::vector<double> myCoefficients;
};
