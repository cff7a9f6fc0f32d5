#pragma once

#include <cstdio>
#include <string_view>

#include "AxEnvironment.h"
#include "AxExport.h"
#include "AxFilename.h"

/// XML into an environment tree: element to object, attribute "name" to its name, text to a plain value. Blanks between
/// elements are dropped; an element with any other text, or with a CDATA section, keeps all of it. Neighbouring text
/// and CDATA are one value. Prefixes stay part of the tag.
///
/// Encodings are UTF-8, UTF-16, ISO-8859-1, US-ASCII and windows-1252. A document type declaration is dropped with a
/// warning; entity declarations are refused and nothing outside the text is ever opened.
///
/// Every failure answers null, sets `*ok` (which may be null) to false and, if `reports`, is reported once with its
/// place.
class ZEDOBJPARAM_API AxEnvXMLReader
{
public:
    static AxEnvironmentPtr readFile(AxFilename const& file, bool* ok = nullptr, bool reports = true);
    /// The same of a file that was opened by this name, and not read yet; it stays the caller's.
    static AxEnvironmentPtr readOpenFile(std::FILE* file, AxFilename const& name, bool reports = true);
    /// `name` stands for the file in reports.
    static AxEnvironmentPtr readText(std::string_view text, AxFilename const& name, bool* ok = nullptr,
                                     bool reports = true);
};
