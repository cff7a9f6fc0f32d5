#pragma once

#include <string_view>

/// The files of the folder report, as they were when the tool was built.
namespace reportFiles
{
extern std::string_view const pageHtml;
extern std::string_view const reportJs;
extern std::string_view const styleCss;
} // namespace reportFiles
