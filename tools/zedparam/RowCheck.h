#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>

class AxlObj;
class CheckedFiles;
class Findings;
class Source;

/// Receives what is odd about a cell.
using CellReport = std::function<void(char const* code, AxlObj const& place, std::string text)>;

/// The first item `(head ...)` in a list, null when there is none.
AxlObj const* itemOf(AxlObj const& list, std::string_view head);

/// The number as parameter text has it.
std::string spelled(double value);

/// Reports what is odd in the probability and damage tables of a file, wherever they stand in it: probabilities outside
/// 0 to 1, rows and outcomes that are missing, repeated or out of order, angles of incidence that nothing covers or an
/// earlier one hides, outcomes of damage that add up to more than 1, elements that others hide. Once for each file.
void checkRows(std::string const& file, CheckedFiles& files, Findings& findings);
/// The same in what stands in one object of an entity file.
void checkRows(std::string const& file, Source const& source, Findings& findings);

/// Shows `goOn` the target and, in steps that grow with the range, what is around it, as far as it answers true.
void forEachRange(std::function<bool(double range)> const& goOn);

/// The value of a constant that is no probability, "below 0" or "above 1" when all values of a polynomial are; empty
/// for others. The coefficient of the highest power stands first.
std::string extentOutside(std::span<double const> coefficients);

/// Whether a list is a range list or the coefficients of a determinant, and what is odd in it.
void checkRangeList(AxlObj const& list, CellReport const& report);
void checkCoefficients(AxlObj const& list, CellReport const& report);
/// What is odd in the angles of a list, if it is that of a surface.
void checkSurface(AxlObj const& list, CellReport const& report);
/// Which surfaces of a list are empty, if it is a damage table or looks like one.
void checkSurfaces(AxlObj const& list, bool isTable, CellReport const& report);
/// Which elements of a list never answer or answer all, if it is a table that is asked by type or munition.
void checkElements(AxlObj const& list, CellReport const& report);
