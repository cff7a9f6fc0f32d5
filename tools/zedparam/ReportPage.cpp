#include "ReportPage.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <fstream>
#include <utility>

#include "AxFilename.h"
#include "AxReadWholeFile.h"
#include "Markup.h"
#include "ReadFile.h"
#include "ReportFiles.h"
#include "ShownPath.h"
#include "WriteFile.h"

namespace fs = std::filesystem;

namespace
{
/// The template with each {{name}} replaced by its value.
std::string filled(std::string_view text, std::map<std::string_view, std::string_view> const& values)
{
    std::string out;
    for (std::size_t open = text.find("{{"); open != std::string_view::npos; open = text.find("{{"))
    {
        std::size_t const close = text.find("}}", open);
        auto const value = values.find(text.substr(open + 2, close - open - 2));
        out.append(text.substr(0, open)).append(value != values.end() ? value->second : "");
        text.remove_prefix(close + 2);
    }
    return out.append(text);
}

constexpr std::size_t theLongestName = 100;
constexpr char thePageList[] = "pages.txt";
constexpr std::string_view theFolders[] = {"records/", "tables/"};

/// Whether it is the name of a page in one of the folders, and leads nowhere else.
bool isPage(std::string_view name)
{
    auto const isIn = [name](std::string_view folder)
    { return name.starts_with(folder) && name.find('/', folder.size()) == std::string_view::npos; };
    return std::ranges::any_of(theFolders, isIn) && name.ends_with(".html");
}

std::string lines(std::set<std::string> const& names)
{
    std::string text;
    for (std::string const& name : names)
    {
        text.append(name) += '\n';
    }
    return text;
}
} // namespace

ReportFolder::ReportFolder(fs::path folder, std::string database)
    : myFolder(std::move(folder)), myDatabase(std::move(database))
{
}

bool ReportFolder::make() const
{
    std::error_code error;
    bool const isReport = fs::exists(myFolder / "report.js", error);
    if (fs::exists(myFolder, error) && !isReport &&
        (!fs::is_directory(myFolder, error) || !fs::is_empty(myFolder, error)))
    {
        std::fprintf(stderr,
                     "zedparam: \"%s\" holds something else; expected a new or empty folder, or one with a report\n",
                     myFolder.c_str());
        return false;
    }
    for (char const* part : {"", "records", "tables"})
    {
        fs::create_directories(myFolder / part, error);
        if (error)
        {
            std::fprintf(stderr, "zedparam: cannot make \"%s\": %s\n", (myFolder / part).c_str(),
                         error.message().c_str());
            return false;
        }
    }
    return writeText("report.js", reportFiles::reportJs) && writeText("style.css", reportFiles::styleCss);
}

bool ReportFolder::writePage(std::string const& page, std::string const& title, std::string_view content) const
{
    std::string const database = markup(myDatabase);
    std::string const heading = markup(title);
    std::string const findings = std::to_string(myFindings);
    bool const isBelow = page.find('/') != std::string::npos;
    return writeText(page, filled(reportFiles::pageHtml, {{"title", heading},
                                                          {"database", database},
                                                          {"findings", findings},
                                                          {"root", isBelow ? theReportRoot : ""},
                                                          {"content", content}}));
}

bool ReportFolder::writeText(std::string const& name, std::string_view text) const
{
    return writeFile((myFolder / name).string(), text);
}

std::string ReportFolder::newPage(std::string const& folder, std::string_view wish)
{
    std::string name(wish.substr(0, theLongestName));
    std::ranges::replace_if(
        name, [](char c) { return std::isalnum(static_cast<unsigned char>(c)) == 0 && c != '-' && c != '.'; }, '_');
    name = folder + "/" + name;
    int const earlier = myNames[name]++;
    name += (earlier == 0 ? "" : "_" + std::to_string(earlier + 1)) + ".html";
    return *myOwnPages.insert(std::move(name)).first;
}

bool ReportFolder::notePages()
{
    std::ifstream list(myFolder / thePageList);
    for (std::string page; std::getline(list, page);)
    {
        if (isPage(page) && !myOwnPages.contains(page))
        {
            myOldPages.insert(std::move(page));
        }
    }
    return writeText(thePageList, lines(myOwnPages) + lines(myOldPages));
}

bool ReportFolder::removeOldPages()
{
    for (std::string const& page : myOldPages)
    {
        std::error_code error;
        fs::remove(myFolder / page, error);
        if (error)
        {
            std::fprintf(stderr, "zedparam: cannot remove \"%s\": %s\n", (myFolder / page).c_str(),
                         error.message().c_str());
            return false;
        }
    }
    return writeText(thePageList, lines(myOwnPages));
}

void ReportFolder::setPageOf(std::string const& file, std::string const& page)
{
    myPages.emplace(shownPath(file), page);
}

std::string const& ReportFolder::pageOf(std::string const& file) const
{
    static std::string const none;
    auto const found = myPages.find(shownPath(file));
    return found != myPages.end() ? found->second : none;
}

std::string htmlLink(std::string const& href, std::string_view text)
{
    return "<a href=\"" + markup(href) + "\">" + markup(text) + "</a>";
}

std::string htmlCode(std::string_view text)
{
    return "<code>" + markup(text) + "</code>";
}

std::string htmlSource(std::string const& file, bool wasRead)
{
    std::string text;
    int error = 0;
    if (!(wasRead ? readAgain(file, text) : axReadWholeFile(AxFilename(file), text, error)))
    {
        return "<p id=\"L1\">The file cannot be read.</p>\n";
    }
    std::string out = "<pre class=\"source\" tabindex=\"0\" role=\"region\" aria-label=\"Text of the file\">";
    std::size_t number = 0;
    for (std::string_view rest = text; !rest.empty() || number == 0;)
    {
        std::size_t const end = std::min(rest.find('\n'), rest.size());
        std::string_view line = rest.substr(0, end);
        line.remove_suffix(line.ends_with('\r') ? 1 : 0);
        out += "<span id=\"L" + std::to_string(++number) + "\">" + markup(line) + "</span>";
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return out + "</pre>\n";
}
