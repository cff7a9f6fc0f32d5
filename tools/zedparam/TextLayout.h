#pragma once

#include <string>

#include "TextReading.h"
#include "TextTree.h"

/// The text in the layout in which the library writes: an item a line, two blanks to a level, values on the line of
/// their keyword. Comments keep their places, one empty line stays between items; lists that the library does not know
/// stay on one line or on several, as they were. What stands behind the first expression stays as it is. A text of this
/// layout, as a saved file is, comes out unchanged.
std::string laidOut(TextTree const& tree, TextReading& reading);

/// Whether two texts have the same tokens, comments included but for blanks at their ends, and the library reads the
/// same cells from both.
bool haveSameContent(TextTree const& a, TextTree const& b);
