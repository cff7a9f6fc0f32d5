#include "XmlLayout.h"

#include <regex>

#include "AxEnvXMLReader.h"
#include "AxEnvXMLWriter.h"

namespace
{
constexpr std::string_view theXmlByteOrderMark = "\xEF\xBB\xBF";

std::string_view withoutMark(std::string_view text)
{
    text.remove_prefix(text.starts_with(theXmlByteOrderMark) ? theXmlByteOrderMark.size() : 0);
    return text;
}

/// What of the text the writer would not write; empty when nothing is.
std::string lostByWriter(std::string const& text)
{
    static std::regex const theDeclaration(
        R"(<\?xml\s+version\s*=\s*["']1\.0["'](\s+encoding\s*=\s*["'](utf-?8)["'])?\s*\?>)", std::regex::icase);
    std::string_view const rest = withoutMark(text);
    std::size_t const end = rest.find("?>");
    if (text.starts_with("\xFE\xFF") || text.starts_with("\xFF\xFE") || text.find('\0') != std::string::npos)
    {
        return "an encoding other than UTF-8";
    }
    if (rest.starts_with("<?xml") && end != std::string_view::npos &&
        !std::regex_match(rest.begin(), rest.begin() + static_cast<std::ptrdiff_t>(end) + 2, theDeclaration))
    {
        return "an XML declaration other than version 1.0 in UTF-8";
    }
    if (text.size() != rest.size())
    {
        return "a byte-order mark";
    }
    for (auto const& [mark, name] :
         {std::pair<std::string_view, char const*>("<!DOCTYPE", "a document type declaration"),
          {"<![CDATA[", "a CDATA section"}})
    {
        if (rest.find(mark) != std::string_view::npos)
        {
            return name;
        }
    }
    return {};
}
} // namespace

bool isXml(std::string_view text)
{
    if (text.starts_with("\xFE\xFF") || text.starts_with("\xFF\xFE"))
    {
        return true;
    }
    text = withoutMark(text);
    std::size_t const first = text.find_first_not_of(" \t\r\n");
    return first != std::string_view::npos && text[first] == '<';
}

bool laidOutXml(std::string const& file, std::string const& text, std::string& out, std::string& reason)
{
    bool isRead = false;
    AxEnvironmentPtr const tree = AxEnvXMLReader::readText(text, AxFilename(file), &isRead);
    if (!isRead)
    {
        reason = "it is no XML that the library reads";
        return false;
    }
    if (std::string const lost = lostByWriter(text); !lost.empty())
    {
        reason = "XML with " + lost + " is not formatted, since that would be lost";
        return false;
    }
    bool const isWritten = AxEnvXMLWriter().writeText(tree, out);
    AxEnvironmentPtr const again = isWritten ? AxEnvXMLReader::readText(out, AxFilename(file), &isRead) : nullptr;
    if (again == nullptr || !isRead || !equalTrees(tree, again))
    {
        reason = "the library would not write all of it back";
        return false;
    }
    return true;
}
