#pragma once

#include <vector>

#include "TypeMatch.h"

class Findings;

/// Reports entries of equal types, of which a database keeps one, and such as can never answer.
void checkEntries(std::vector<ReadEntry> entries, Findings& findings);
