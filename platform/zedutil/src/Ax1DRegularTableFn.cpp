#include "Ax1DRegularTableFn.h"

#include "AxDiagnostic.h"

Ax1DRegularTableFn::Ax1DRegularTableFn(Ax1DRegularTableFn const& other, AxReaderWriterRegistry* registry)
    : AxRecordOf(other.AxReaderWriter::name(), registry)
{
    assign(other);
}

Ax1DRegularTableFn::~Ax1DRegularTableFn() = default;

Ax1DRegularTableFn& Ax1DRegularTableFn::operator=(Ax1DRegularTableFn const& other)
{
    assign(other);
    return *this;
}

double Ax1DRegularTableFn::evaluate(double x) const
{
    if (myValues.empty())
    {
        return 0.0;
    }
    if (!(xStep() > 0.0))
    {
        AxDiagnostic fault;
        fault.severity = AxSeverity::Warning;
        fault.code = "bad-step";
        fault.text = "the table \"" + name().string().string() + "\" has no step above 0 and counts as empty";
        AxDiagnostics::report(std::move(fault));
        return 0.0;
    }
    double const place = (x - xMin()) / xStep();
    if (!(place > 0.0))
    {
        return myValues[0];
    }
    std::size_t const last = myValues.size() - 1;
    if (place >= static_cast<double>(last))
    {
        return myValues[last];
    }
    auto const below = static_cast<std::size_t>(place);
    double const part = place - static_cast<double>(below);
    return myValues[below] + part * (myValues[below + 1] - myValues[below]);
}
