#include "AxPrbProbabilityCoefficients.h"

#include "AxNumberText.h"
#include "AxReaderWriterFactory.h"
#include "AxRwReal.h"
#include "AxStreams.h"
#include "AxlObj.h"

#include <algorithm>
#include <cmath>

static AxTypeEntry<AxPrbProbabilityCoefficients> const prbProbabilityCoefficientsEntry;

AxPrbProbabilityCoefficients::AxPrbProbabilityCoefficients(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxReaderWriter(name, registry)
{
    setFlag(Value, true);
}

AxPrbProbabilityCoefficients::AxPrbProbabilityCoefficients(AxString const& name, AxReaderWriterRegistry* registry)
    : AxPrbProbabilityCoefficients(AxSymbolString(name), registry)
{
}

AxPrbProbabilityCoefficients::AxPrbProbabilityCoefficients(char const* name, AxReaderWriterRegistry* registry)
    : AxPrbProbabilityCoefficients(AxSymbolString(name), registry)
{
}

AxPrbProbabilityCoefficients::AxPrbProbabilityCoefficients(AxSymbolString name,
                                                           AxPrbProbabilityCoefficients const& other,
                                                           AxReaderWriterRegistry* registry)
    : AxPrbProbabilityCoefficients(name, registry)
{
    *this = other;
}

AxPrbProbabilityCoefficients::AxPrbProbabilityCoefficients(AxPrbProbabilityCoefficients const& other)
    : AxReaderWriter(other), myCoefficients(other.myCoefficients)
{
    setFlag(Value, true);
}

AxPrbProbabilityCoefficients::~AxPrbProbabilityCoefficients() = default;

AxPrbProbabilityCoefficients& AxPrbProbabilityCoefficients::operator=(AxPrbProbabilityCoefficients const& other)
{
    if (this != &other)
    {
        myCoefficients = other.myCoefficients;
        carryState(other);
    }
    return *this;
}

bool AxPrbProbabilityCoefficients::equals(AxPrbProbabilityCoefficients const& other) const
{
    return AxReaderWriter::name() == other.AxReaderWriter::name() &&
           std::equal(myCoefficients.begin(), myCoefficients.end(), other.myCoefficients.begin(),
                      other.myCoefficients.end(), AxRwReal::same);
}

void AxPrbProbabilityCoefficients::setNumCoefficients(int number)
{
    constexpr int most = 1000;
    myCoefficients.resize(static_cast<std::size_t>(std::clamp(number, 0, most)));
    setFlag(Specified, true);
    valueAssigned();
}

void AxPrbProbabilityCoefficients::setCoefficients(int number, double const* coefficients)
{
    // The caller has them, so no number in a file can ask for more memory than there is: no limit is needed.
    myCoefficients = std::vector<double>(coefficients, coefficients + (coefficients ? std::max(number, 0) : 0));
    setFlag(Specified, true);
    valueAssigned();
}

bool AxPrbProbabilityCoefficients::isInSet(int index) const
{
    if (myCoefficients.empty())
    {
        AxWarn("attempt to access uninitialized coefficient list\n");
        return false;
    }
    if (index < 0 || index >= numCoefficients())
    {
        AxWarn("attempt to access coefficient list out of bounds\n");
        return false;
    }
    return true;
}

double AxPrbProbabilityCoefficients::coefficient(int index) const
{
    return isInSet(index) ? myCoefficients[static_cast<std::size_t>(index)] : 0.0;
}

void AxPrbProbabilityCoefficients::setCoefficient(int index, double value)
{
    if (isInSet(index))
    {
        myCoefficients[static_cast<std::size_t>(index)] = value;
        setFlag(Specified, true);
        valueAssigned();
    }
}

double AxPrbProbabilityCoefficients::probability(double range) const
{
    double sum = 0.0;
    for (double const coefficient : myCoefficients)
    {
        sum = sum * range + coefficient;
    }
    if (sum > 1.0)
    {
        return 1.0;
    }
    return sum < 0.0 ? 0.0 : sum;
}

double AxPrbProbabilityCoefficients::solveForMaximum() const
{
    std::vector<double> const& c = myCoefficients;
    switch (c.size())
    {
    case 1:
        return c[0];
    case 2:
        return -c[1] / c[0];
    case 3:
    {
        double const root = std::sqrt(c[1] * c[1] - 4.0 * c[0] * c[2]);
        double const plus = (root - c[1]) / (2.0 * c[0]);
        double const minus = (-c[1] - root) / (2.0 * c[0]);
        return plus > minus ? plus : minus;
    }
    default:
        AxWarn(" %d level polynomial not supported.\n", numCoefficients());
        return 0.0;
    }
}

AxlObjPtr AxPrbProbabilityCoefficients::getData(AxlObjPtr const& items, AxFilenameList const&, AxBindingsList const&)
{
    std::vector<double> read;
    AxlObj const* rest = items.get();
    for (; rest->car()->isNumber(); rest = rest->cdr())
    {
        read.push_back(rest->car()->flonum());
    }
    if (rest->isPair())
    {
        reject(rest, "numbers");
        return items;
    }
    myCoefficients = std::move(read);
    return AxlObjPtr(rest);
}

void AxPrbProbabilityCoefficients::putData(std::string& out, int)
{
    char const* separator = "";
    for (double const coefficient : myCoefficients)
    {
        out += separator;
        axAppendReal(out, coefficient);
        separator = " ";
    }
}

void AxPrbProbabilityCoefficients::reset()
{
    AxReaderWriter::reset();
    myCoefficients.clear();
}

char const* AxPrbProbabilityCoefficients::readerWriterType() const
{
    return "AxPrbProbabilityCoefficients";
}
