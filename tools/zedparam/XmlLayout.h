#pragma once

#include <string>
#include <string_view>

/// Whether a file holds XML rather than parameter text.
bool isXml(std::string_view text);

/// The text as the library writes it. False, with the reason, when the library cannot read it, or when its writer would
/// lose something: a document type declaration, a CDATA section, another encoding than UTF-8, other declarations.
bool laidOutXml(std::string const& file, std::string const& text, std::string& out, std::string& reason);
