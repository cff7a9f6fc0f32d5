#pragma once

#include <cstdio>
#include <string>

/// Reads an open file to its end. False, with `out` empty, when it is null, a directory, above the limit or unreadable.
bool axReadRest(std::FILE* file, std::string& out);
