#pragma once

#include <string>

class AxSimMunition;

/// Type and name of a munition, "any" for a pattern that leaves both open.
std::string munitionText(AxSimMunition const& munition);
