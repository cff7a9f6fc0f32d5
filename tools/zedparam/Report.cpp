#include "Commands.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "AxZedObjectParameters.h"
#include "CommandLine.h"
#include "Database.h"
#include "DatabaseCheck.h"
#include "Dot.h"
#include "Findings.h"
#include "Json.h"
#include "Markup.h"
#include "Progress.h"
#include "ReportPage.h"
#include "ReportRecord.h"
#include "ReportTable.h"
#include "ReportTree.h"
#include "ShownPath.h"
#include "SystemGraph.h"
#include "Tables.h"

namespace
{
namespace fs = std::filesystem;

/// The drawing for a page: without its titles, which are made-up names, and free to shrink somewhat.
std::string forPage(std::string_view svg, std::string const& label)
{
    std::string out = "<svg role=\"img\" aria-label=\"" + markup(label) + "\"";
    constexpr std::string_view theWidth = "<svg width=\"";
    if (svg.starts_with(theWidth))
    {
        constexpr double theLeast = 0.65;
        double const width = std::strtod(svg.data() + theWidth.size(), nullptr);
        out += " style=\"min-width:" + drawn(theLeast * width) + "pt\"";
    }
    svg.remove_prefix(std::string_view("<svg").size());
    while (!svg.empty())
    {
        std::size_t const end = std::min(svg.find('\n') + 1, svg.size());
        std::string_view const line = svg.substr(0, end == 0 ? svg.size() : end);
        if (!line.starts_with("<title>") && !line.starts_with("<!--"))
        {
            out += line;
        }
        svg.remove_prefix(line.size());
    }
    return out;
}

class Report
{
public:
    Report(Database const& database, std::string const& file, std::string const& folder)
        : myDatabase(database), myFolder(folder, fs::path(file).filename().string()), myFile(file)
    {
    }

    /// Answers an exit code.
    int write()
    {
        if (!myFolder.make())
        {
            return CouldNotRun;
        }
        collect();
        check();
        std::vector<AxDiagnostic> unread;
        if (!writePages(unread))
        {
            return CouldNotRun;
        }
        std::erase_if(unread, [this](AxDiagnostic const& finding) { return isFound(finding); });
        std::ranges::for_each(unread, AxDiagnostics::report);
        std::printf("%zu %s, %zu %s, %zu %s\n", myEntries.size(), myEntries.size() == 1 ? "entry" : "entries",
                    myTables.size(), myTables.size() == 1 ? "table" : "tables", myFindings.size(),
                    myFindings.size() == 1 ? "finding" : "findings");
        return myFindings.empty() && unread.empty() ? Fine : HasFindings;
    }

private:
    struct Table
    {
        std::string file;
        std::string shownFile;
        std::string title;
        std::string page;
        std::set<std::size_t> users; // entries
    };

    void collect()
    {
        for (AxSxpParameterDbEntry* entry : myDatabase.entries())
        {
            ReportEntry& added = myEntries.emplace_back();
            added.entry = entry;
            added.file = Database::fileOf(*entry);
            added.title = fs::path(added.file).filename().string();
            added.page = myFolder.newPage("records", entry->objectType().string(".").string());
            myFolder.setPageOf(added.file, added.page);
        }
        growTree(myEntries);
        for (fs::path const& file : tableFiles(myDatabase))
        {
            Table& table = myTables.emplace_back();
            table.file = file.string();
            table.shownFile = shownPath(table.file);
            table.title = file.parent_path().filename().string() + "/" + file.filename().string();
            table.page = myFolder.newPage("tables", table.title);
            myFolder.setPageOf(table.file, table.page);
        }
        mySearch.beginArray();
    }

    /// All that zedparam check tells.
    void check()
    {
        Findings findings(Findings::Print::Never);
        checkDatabase(myFile, findings);
        myFindings = findings.sorted();
        myFolder.setFindings(myFindings.size());
    }

    /// The files that could not be read for the pages come into `unread`.
    bool writePages(std::vector<AxDiagnostic>& unread)
    {
        Findings muted(Findings::Print::Never); // what there is to tell of what they hold the check told
        bool const isWritten = myFolder.notePages() && writeRecords() && writeTables() && writeIndex() &&
                               writeFindings() &&
                               myFolder.writeText("search.js", "window.zedSearch = " + mySearch.endArray().text()) &&
                               myFolder.removeOldPages();
        unread = muted.unread();
        return isWritten;
    }

    /// Whether the check found the same.
    bool isFound(AxDiagnostic const& finding) const
    {
        return std::ranges::any_of(myFindings, [&finding](AxDiagnostic const& found)
                                   { return found.code == finding.code && found.file == finding.file; });
    }

    bool writeRecords()
    {
        Progress progress("writing records", myEntries.size());
        for (std::size_t i = 0; i < myEntries.size(); ++i)
        {
            ReportEntry& entry = myEntries[i];
            std::string content;
            bool const isRead = myDatabase.withRecord(*entry.entry, [&](AxZedObjectParameters& record)
                                                      { content = recordPage(i, record); });
            if (!myFolder.writePage(entry.page, entry.title, isRead ? content : unreadPage(entry)))
            {
                return false;
            }
            addSearch(entry.title, entry.entry->objectType().string().string() + "  " + entry.kind, entry.page,
                      entry.file);
            progress.step();
        }
        return true;
    }

    void addSearch(std::string const& title, std::string const& detail, std::string const& page,
                   std::string const& words)
    {
        mySearch.beginRow().string(title).string(detail).string(page).string(words).endArray();
    }

    static std::string typeOf(ReportEntry const& entry)
    {
        return "<span class=\"type\">" + markup(entry.entry->objectType().string().string()) + "</span>";
    }

    std::string pageHead(ReportEntry const& entry) const
    {
        bool const isPattern = Database::isPattern(*entry.entry);
        return pathTo(entry) + "<h1>" + markup(entry.title) + "</h1>\n<dl class=\"facts\">\n" +
               fact("Type", htmlCode(entry.entry->objectType().string().string()) +
                                (isPattern ? " <span class=\"badge\">pattern</span>" : "")) +
               fact("File", htmlCode(entry.file));
    }

    std::string unreadPage(ReportEntry const& entry) const
    {
        return pageHead(entry) + "</dl>\n<p>The record cannot be read.</p>\n" + findingsOf(entry.file) + below(entry) +
               textOf(entry.file, false);
    }

    std::string recordPage(std::size_t index, AxZedObjectParameters& record)
    {
        ReportEntry& entry = myEntries[index];
        AxString const& title = record.displayName();
        AxString const name = record.AxReaderWriter::name().string();
        entry.title = !title.isNull() ? title.string() : !name.isNull() ? name.string() : entry.title;
        entry.kind = record.parameterType().string();
        std::string out = pageHead(entry) + fact("Record", htmlCode(name.string()) + ", a " + htmlCode(entry.kind));
        if (!record.displayDescription().isNull())
        {
            out += fact("Description", markup(record.displayDescription().string()));
        }
        std::vector<std::string> used;
        std::string const values = reportValues(record, *entry.entry, myDatabase, myFolder, used);
        for (Table& table : myTables)
        {
            if (std::ranges::find(used, table.shownFile) != used.end())
            {
                table.users.insert(index);
            }
        }
        std::string const connections = connectionsOf(record); // after the values: the record changes
        return out + "</dl>\n" + jumps(!connections.empty()) + findingsOf(entry.file) + below(entry) + connections +
               "<h2 id=\"values\">Values</h2>\n<p hidden><label><input type=\"checkbox\" id=\"with-defaults\"> Show "
               "defaults too</label></p>\n" +
               values + textOf(entry.file, true);
    }

    static std::string jumps(bool hasConnections)
    {
        return std::string("<nav aria-label=\"On this page\"><ul class=\"jumps\">") +
               (hasConnections ? "<li>" + htmlLink("#connections", "Connections") + "</li>" : "") + "<li>" +
               htmlLink("#values", "Values") + "</li><li>" + htmlLink("#text", "Text of the file") +
               "</li></ul></nav>\n";
    }

    static std::string fact(char const* name, std::string const& html)
    {
        return "<dt>" + std::string(name) + "</dt><dd>" + html + "</dd>\n";
    }

    static std::string textOf(std::string const& file, bool wasRead)
    {
        return "<h2 id=\"text\">Text</h2>\n<details><summary>The file as it is written</summary>\n" +
               htmlSource(file, wasRead) + "</details>\n";
    }

    /// The patterns that the entry stands below.
    std::string pathTo(ReportEntry const& entry) const
    {
        std::string items;
        for (std::size_t up = entry.parent; up != ReportEntry::none; up = myEntries[up].parent)
        {
            items.insert(0, "<li>" + htmlLink(theReportRoot + myEntries[up].page, myEntries[up].title) + "</li>");
        }
        return "<nav aria-label=\"Patterns above\"><ol class=\"path\"><li>" +
               htmlLink(std::string(theReportRoot) + "index.html#types", "Types") + "</li>" + items + "</ol></nav>\n";
    }

    std::string below(ReportEntry const& entry) const
    {
        if (entry.children.empty())
        {
            return "";
        }
        std::string out = "<h2 id=\"below\">More special entries</h2>\n<ul class=\"tree\">\n";
        for (std::size_t const child : entry.children)
        {
            ReportEntry const& special = myEntries[child];
            out += "<li>" + htmlLink(theReportRoot + special.page, special.file) + " " + typeOf(special) + "</li>\n";
        }
        return out + "</ul>\n";
    }

    std::string connectionsOf(AxZedObjectParameters& record)
    {
        SystemGraph const graph = graphOf(record);
        if (graph.empty())
        {
            return "";
        }
        std::string out = "<h2 id=\"connections\">Connections</h2>\n";
        std::string svg;
        constexpr std::size_t theMostDrawn = 500; // more takes minutes to lay out, and nobody can read it
        if (graph.size() > theMostDrawn)
        {
            out += "<p>" + std::to_string(graph.size()) + " parts and connections are too many for a picture.</p>\n";
        }
        else if (myHasDot && drawDot(graphDot(graph), svg))
        {
            out += "<figure class=\"graph scroll\" tabindex=\"0\" role=\"region\" aria-label=\"Picture of the "
                   "connections\">\n" +
                   forPage(svg, "Systems, components and connections; the outline below tells the same") +
                   "</figure>\n";
        }
        else if (myHasDot)
        {
            myHasDot = false;
            std::fputs(
                "zedparam: without the command dot (Debian's package graphviz) connections are listed, not drawn\n",
                stderr);
        }
        return out + "<details" + (svg.empty() ? " open" : "") +
               "><summary>The connections as an outline</summary>\n<pre>" + markup(graphText(graph)) +
               "</pre></details>\n";
    }

    /// A list of the findings about one file, named as it is shown; nothing when there are none.
    std::string findingsOf(std::string const& file) const
    {
        std::string items;
        for (auto finding = std::ranges::lower_bound(myFindings, file, {}, &AxDiagnostic::file);
             finding != myFindings.end() && finding->file == file; ++finding)
        {
            items += findingItem(*finding, "#L" + std::to_string(finding->line));
        }
        return items.empty() ? "" : "<h2 id=\"findings\">Findings</h2>\n<ul>\n" + items + "</ul>\n";
    }

    /// Without a link when `href` is empty.
    static std::string findingItem(AxDiagnostic const& finding, std::string const& href)
    {
        constexpr char const* theSeverities[] = {"error", "warning", "info"};
        char const* const severity = theSeverities[static_cast<int>(finding.severity)];
        std::string const line = "line " + std::to_string(finding.line);
        return "<li>" + (href.empty() ? line : htmlLink(href, line)) + ": <strong class=\"" + severity + "\">" +
               severity + "</strong>: " + markup(finding.text) +
               (finding.hint.empty() ? "" : "; " + markup(finding.hint)) +
               (finding.code.empty() ? "" : " " + htmlCode(finding.code)) + "</li>\n";
    }

    bool writeTables()
    {
        Progress progress("writing tables", myTables.size());
        for (Table const& table : myTables)
        {
            std::string out = "<nav aria-label=\"Above\"><ol class=\"path\"><li>" +
                              htmlLink(std::string(theReportRoot) + "index.html#tables", "Tables") +
                              "</li></ol></nav>\n<h1>" + markup(table.title) + "</h1>\n<dl class=\"facts\">\n" +
                              fact("File", htmlCode(table.shownFile)) + "</dl>\n" + findingsOf(table.shownFile);
            if (!table.users.empty())
            {
                out += "<h2>Used by</h2>\n<ul>\n";
                for (std::size_t const user : table.users)
                {
                    out += "<li>" + htmlLink(theReportRoot + myEntries[user].page, myEntries[user].title) + " " +
                           typeOf(myEntries[user]) + "</li>\n";
                }
                out += "</ul>\n";
            }
            if (!myFolder.writePage(table.page, table.title, out + reportTable(table.file)))
            {
                return false;
            }
            addSearch(table.title, "table", table.page, table.file);
            progress.step();
        }
        return true;
    }

    void addTree(std::string& out, std::size_t index) const
    {
        ReportEntry const& entry = myEntries[index];
        out += "<li>" + htmlLink(entry.page, entry.title) + " " + typeOf(entry);
        if (Database::isPattern(*entry.entry))
        {
            out += " <span class=\"badge\">pattern</span>";
        }
        if (entry.kind.empty())
        {
            out += " <strong class=\"error\">cannot be read</strong>";
        }
        if (!entry.children.empty())
        {
            out += "\n<ul>\n";
            for (std::size_t const child : entry.children)
            {
                addTree(out, child);
            }
            out += "</ul>\n";
        }
        out += "</li>\n";
    }

    bool writeIndex()
    {
        std::string out =
            "<h1>" + markup(fs::path(myFile).filename().string()) + "</h1>\n<dl class=\"facts\">\n" +
            fact("File", htmlCode(shownPath(myFile))) + fact("Entries", std::to_string(myEntries.size())) +
            fact("Tables", std::to_string(myTables.size())) +
            fact("Findings", htmlLink("findings.html", std::to_string(myFindings.size()))) +
            "</dl>\n<h2 id=\"types\">Types</h2>\n<p>Below a pattern stand the entries that answer before it.</p>\n"
            "<ul class=\"tree\">\n";
        for (std::size_t i = 0; i < myEntries.size(); ++i)
        {
            if (myEntries[i].parent == ReportEntry::none)
            {
                addTree(out, i);
            }
        }
        out += "</ul>\n<h2 id=\"tables\">Tables</h2>\n";
        out += myTables.empty() ? "<p>There are none beside the database.</p>\n" : "<ul>\n";
        for (Table const& table : myTables)
        {
            out += "<li>" + htmlLink(table.page, table.title) + "</li>\n";
        }
        return myFolder.writePage("index.html", "Types and tables", out + (myTables.empty() ? "" : "</ul>\n"));
    }

    bool writeFindings()
    {
        std::string out = "<h1>Findings</h1>\n";
        out += myFindings.empty() ? "<p>There are none.</p>\n" : "";
        std::string file;
        bool isOpen = false;
        for (AxDiagnostic const& finding : myFindings)
        {
            std::string const& page = myFolder.pageOf(finding.file);
            if (!isOpen || finding.file != file)
            {
                file = finding.file;
                out += std::string(isOpen ? "</ul>\n" : "") + "<h2>" +
                       (page.empty() ? htmlCode(file) : htmlLink(page, file)) + "</h2>\n<ul>\n";
                isOpen = true;
            }
            out += findingItem(finding, page.empty() ? "" : page + "#L" + std::to_string(finding.line));
        }
        return myFolder.writePage("findings.html", "Findings", out + (isOpen ? "</ul>\n" : ""));
    }

    Database const& myDatabase;
    ReportFolder myFolder;
    std::string myFile;
    std::vector<ReportEntry> myEntries;
    std::vector<Table> myTables;
    std::vector<AxDiagnostic> myFindings;
    JsonWriter mySearch;
    bool myHasDot = true;
};

int report(std::string const& file, std::string const& folder)
{
    Findings findings(Findings::Print::AtOnce);
    std::unique_ptr<Database> const database = Database::open(file);
    return database == nullptr ? CouldNotRun : Report(*database, file, folder).write();
}
} // namespace

void addReportCommand(CommandLine& line)
{
    struct Options
    {
        std::string database;
        std::string folder;
    };
    auto const options = std::make_shared<Options>();
    line.add("report",
             "Writes pages that show a database in a browser: types, records, tables, connections and findings.",
             [options] { return report(options->database, options->folder); })
        .required("DB", options->database, "The database file (.opd)")
        .required("-o,--output", options->folder,
                  "The folder to write: new, empty, or with an older report, whose pages go");
}
