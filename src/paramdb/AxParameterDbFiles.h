#pragma once

#include "AxDiagnostic.h"
#include "AxFilename.h"

#include <cstdio>
#include <memory>
#include <string>

class AxRwVariableBindings;

struct AxFileCloser
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using AxFilePtr = std::unique_ptr<std::FILE, AxFileCloser>;

/// Opens a regular file; null with errno otherwise.
AxFilePtr axOpenToRead(AxFilename const& file);

/// The directory of `file`, absolute and without a separator at its end, so that "$(opd-dir)/x" never doubles one.
AxFilename axDirectoryOf(AxFilename const& file);

/// The name up to its last separator; null when that is its first character or there is none.
AxFilename axPathOf(AxFilename const& file);

/// `file` by its place below the directory; null when it is not below it.
AxFilename axPlaceBelow(AxFilename const& directory, AxFilename const& file);

/// Binds "opd-dir".
void axBindDatabaseDirectory(AxRwVariableBindings& bindings, AxFilename const& directory);

/// As printf into a string.
[[gnu::format(printf, 1, 2)]] std::string axFormat(char const* format, ...);

AxDiagnostic axFault(char const* code, AxFilename const& file, std::string text,
                     AxSeverity severity = AxSeverity::Error);
/// For an opened file whose text cannot be taken; names the limit when that is why.
AxDiagnostic axUnreadable(AxFilename const& file, std::FILE* open);
/// A finding at a place of the file that is being read.
AxDiagnostic axFaultAt(char const* code, unsigned line, unsigned column, std::string text,
                       AxSeverity severity = AxSeverity::Error);
