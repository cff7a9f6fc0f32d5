#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

/// The files of a report: writes the pages around their contents, and knows which page tells about a file.
class ReportFolder
{
public:
    /// `database` is what the report is called.
    ReportFolder(std::filesystem::path folder, std::string database);

    /// Makes the folder. False, after a line, when that fails or it holds other files than those of a report.
    bool make() const;

    /// Writes a page, the content being HTML. `page` is its place in the folder, with at most one folder of its own.
    bool writePage(std::string const& page, std::string const& title, std::string_view content) const;
    bool writeText(std::string const& name, std::string_view text) const;

    /// A page name in a folder that no page has yet, made from `wish`.
    std::string newPage(std::string const& folder, std::string_view wish);

    /// Notes in the folder all pages that were named, and those that an earlier report has noted there.
    bool notePages();
    /// Removes the pages of earlier reports that this one has not.
    bool removeOldPages();

    /// From now on the page tells about that file, unless another one does.
    void setPageOf(std::string const& file, std::string const& page);
    /// Empty when there is none.
    std::string const& pageOf(std::string const& file) const;

    void setFindings(std::size_t number) { myFindings = number; }

private:
    std::filesystem::path myFolder;
    std::string myDatabase;
    std::map<std::string, std::string> myPages; // by file as it is shown
    std::map<std::string, int> myNames;
    std::set<std::string> myOwnPages;
    std::set<std::string> myOldPages;
    std::size_t myFindings = 0;
};

// ---- HTML; every text is escaped. ----

std::string htmlLink(std::string const& href, std::string_view text);
std::string htmlCode(std::string_view text);
/// A way back to the top of the folder from a page in a folder of its own.
constexpr char theReportRoot[] = "../";
/// A text file with an anchor L1, L2 ... for each line. Of one that the library has read, it is reported when that
/// cannot be done again.
std::string htmlSource(std::string const& file, bool wasRead);
