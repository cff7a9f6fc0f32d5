#pragma once

#include <cstddef>

/// How often memory was asked for by `new` since the process began; always 0 under a sanitizer, which brings its own.
std::size_t allocationCount();
