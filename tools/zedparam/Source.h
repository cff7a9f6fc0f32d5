#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "AxSymbolString.h"
#include "AxlObj.h"

class AxReaderWriter;
struct AxDiagnostic;

/// One keyword on the way from a file's first expression to a value, and what is read there, which knows its aliases.
struct SourceStep
{
    AxSymbolString keyword; ///< null: any item
    AxReaderWriter const* rw = nullptr;
};

/// The first expression of a file, read again to tell where something stands in it. Each search answers null when
/// nothing is found.
class Source
{
public:
    /// Without an expression, and without a report, when the file cannot be read.
    explicit Source(std::string const& file);

    /// Nil when there is none.
    AxlObj const& expression() const { return *myExpression; }
    /// What follows the last keyword. Of repeated keywords the last counts, as in reading.
    AxlObj const* value(std::vector<SourceStep> const& path) const;
    /// The first `$variable`, or string with `$(variable)` in it.
    AxlObj const* reference(std::string_view variable) const;
    /// Shows `visit` every list, each before those in it.
    void forEachList(std::function<void(AxlObj const& list)> const& visit) const;

    /// Sets line and column to those of `cell` unless it is null.
    static void setPlace(AxDiagnostic& finding, AxlObj const* cell);

private:
    AxlObjPtr myExpression;
};
