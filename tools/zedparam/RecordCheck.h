#pragma once

#include <string>

class AxZedObjectParameters;
class Findings;

/// Reports values outside the range of their member and variables that nothing binds, each at its place in `file` or
/// in the file below it that gives it.
void checkRecord(std::string const& file, AxZedObjectParameters& record, Findings& findings);
