#include "ReportRecord.h"

#include <algorithm>
#include <limits>

#include "AxComponentDescriptor.h"
#include "AxReaderWriterFile.h"
#include "AxRwProperty.h"
#include "AxZedObjectParameters.h"
#include "Database.h"
#include "Markup.h"
#include "Origin.h"
#include "RangeText.h"
#include "RecordValue.h"
#include "RecordWalk.h"
#include "ReportPage.h"
#include "ShownPath.h"

namespace
{
/// The file that a file member has read into content of its own; empty when there is none.
std::string ownFile(AxReaderWriter const& rw)
{
    auto const* const file = dynamic_cast<AxReaderWriterFile const*>(&rw);
    bool const isOwn =
        file != nullptr && file->content() != nullptr && file->contentKind() != AxReaderWriterFile::ContentKind::Member;
    return isOwn ? file->foundFilename().native() : "";
}

/// Whether more stands behind it than a value.
bool isPart(AxReaderWriter const& rw)
{
    auto const* const property = dynamic_cast<AxRwProperty const*>(&rw);
    return property != nullptr && property->rwValue() != nullptr ? !isLeaf(*property->rwValue())
                                                                 : !isLeaf(rw) || !ownFile(rw).empty();
}

/// A record or list on the way to where the walk stands: its values are a table, and the parts in it stand below.
struct Part
{
    std::size_t depth = 0;
    std::string heading{};
    std::string rows{};
    std::string parts{};
    bool hasGiven = false; ///< whether one of the values is no default
};

class RecordHtml
{
public:
    RecordHtml(AxZedObjectParameters& record, AxSxpParameterDbEntry const& entry, Database const& database,
               ReportFolder const& folder, std::vector<std::string>& tables)
        : myRecord(record),
          myFile(Database::foundFile(entry)),
          myFolder(folder),
          myTables(tables),
          myOrigins(database, entry, record)
    {
    }

    std::string write()
    {
        myParts.emplace_back();
        RecordWalk(myFile, myRecord).run(KeywordPath::everything(), [this](RecordWalk const& at) { visit(at); });
        closeDownTo(1);
        return tableOf(myParts.front()) + myParts.front().parts;
    }

private:
    void visit(RecordWalk const& at)
    {
        std::size_t const depth = at.steps().size();
        if (depth > mySkippedBelow)
        {
            return;
        }
        mySkippedBelow = std::numeric_limits<std::size_t>::max();
        closeDownTo(depth);
        std::string const page = at.isInRecordsOwnFile() ? "" : myFolder.pageOf(at.file());
        bool const isWord = at.ownItem() != nullptr;
        if (!page.empty())
        {
            skipBelow(depth); // that page shows it
        }
        else if (!isWord && isPart(at.rw()) && linkOf(at.rw()).empty())
        {
            at.rw().isDue() ? open(at) : skipBelow(depth);
        }
        else
        {
            addRow(at);
            skipBelow(depth);
        }
    }

    void skipBelow(std::size_t depth) { mySkippedBelow = depth; }

    void open(RecordWalk const& at)
    {
        constexpr std::size_t theFirstLevel = 2; // of the headings around the values
        AxReaderWriter const& rw = at.rw();
        std::string const tag = "h" + std::to_string(std::min<std::size_t>(theFirstLevel + at.steps().size(), 6));
        std::string heading = "<" + tag + ">" + wordFor(at);
        if (auto const* const component = dynamic_cast<AxComponentDescriptor const*>(&rw))
        {
            heading += " <span class=\"type\">" + markup(component->type().string()) + "</span>";
        }
        heading += "</" + tag + ">\n<div class=\"part\">\n";
        AxKeyword const* const description = rw.description();
        if (description != nullptr && *description->help != '\0')
        {
            heading += "<p>" + markup(description->help) + "</p>\n";
        }
        if (std::string const file = ownFile(rw); !file.empty())
        {
            heading += "<p>Read from " + htmlCode(shownPath(file)) + "</p>\n";
        }
        myParts.push_back({at.steps().size(), std::move(heading)});
    }

    /// Ends the parts that what stands at that depth is not in.
    void closeDownTo(std::size_t depth)
    {
        while (myParts.back().depth >= depth)
        {
            Part const part = std::move(myParts.back());
            myParts.pop_back();
            myParts.back().parts += part.heading + tableOf(part) + part.parts + "</div>\n";
        }
    }

    static std::string tableOf(Part const& part)
    {
        if (part.rows.empty())
        {
            return "";
        }
        return std::string("<table class=\"values") + (part.hasGiven ? "" : " by-default") +
               "\"><thead><tr><th scope=\"col\">Keyword</th><th scope=\"col\">Value</th><th scope=\"col\">Unit</th>"
               "<th scope=\"col\">Origin</th><th scope=\"col\">Meaning</th></tr></thead>\n<tbody>\n" +
               part.rows + "</tbody></table>\n";
    }

    void addRow(RecordWalk const& at)
    {
        Part& part = myParts.back();
        bool const isWord = at.ownItem() != nullptr;
        bool const isGiven = isWord || at.rw().isDue();
        AxKeyword const* const description = isWord ? nullptr : at.rw().description();
        std::string const link = isWord ? "" : linkOf(at.rw());
        std::string const value = valueText(at);
        std::string unit;
        if (!isWord)
        {
            unitOf(at, unit);
        }
        part.hasGiven = part.hasGiven || isGiven;
        part.rows += std::string("<tr") + (isGiven ? "" : " class=\"by-default\"") + "><th scope=\"row\">" +
                     wordFor(at) + "</th><td>" +
                     (link.empty() ? htmlCode(value) : htmlLink(theReportRoot + link, value)) + "</td><td>" +
                     markup(unit) + "</td><td>" + originOf(at) + "</td><td>" +
                     (description != nullptr ? markup(description->help) : "") +
                     (description != nullptr && description->range.isBounded()
                          ? " (" + markup(rangeText(description->range)) + ")"
                          : "") +
                     "</td></tr>\n";
    }

    static std::string wordFor(RecordWalk const& at)
    {
        return at.keyword().isNull() ? "item" : htmlCode(at.keyword().view());
    }

    /// The page that tells what a file member has read; empty when there is none.
    std::string linkOf(AxReaderWriter const& rw)
    {
        auto const* const file = dynamic_cast<AxReaderWriterFile const*>(&rw);
        if (file == nullptr || file->foundFilename().isNull())
        {
            return "";
        }
        std::string const& page = myFolder.pageOf(file->foundFilename().native());
        if (!page.empty())
        {
            myTables.push_back(shownPath(file->foundFilename().native()));
        }
        return page;
    }

    std::string originOf(RecordWalk const& at)
    {
        Origin const origin = myOrigins.of(at);
        std::string const place = placeOf(origin.place);
        switch (origin.kind)
        {
        case Origin::Kind::Given:
            return place;
        case Origin::Kind::Default:
            return place.empty() ? "default" : "default, " + place;
        case Origin::Kind::Inherited:
            return "inherited from " + htmlCode(origin.parent) + ", " + place;
        case Origin::Kind::Variable:
            break;
        }
        std::string html = place;
        for (Origin::Binding const& binding : origin.bindings)
        {
            html += ", " + htmlCode("$" + binding.variable) +
                    (binding.place.file.empty() ? " is not bound" : " from " + placeOf(binding.place));
        }
        return html;
    }

    std::string placeOf(Place const& place) const
    {
        if (place.file.empty())
        {
            return "";
        }
        std::string const line = place.line != 0 ? "line " + std::to_string(place.line) : "";
        std::string const anchor = place.line != 0 ? "#L" + std::to_string(place.line) : "";
        if (place.file == shownPath(myFile))
        {
            return anchor.empty() ? "this file" : htmlLink(anchor, line);
        }
        std::string const name =
            AxFilename(place.file).stripPath().string().string() + (line.empty() ? "" : ", " + line);
        std::string const& page = myFolder.pageOf(place.file);
        return page.empty() ? markup(name) : htmlLink(theReportRoot + page + anchor, name);
    }

    AxZedObjectParameters& myRecord;
    std::string const myFile;
    ReportFolder const& myFolder;
    std::vector<std::string>& myTables;
    Origins myOrigins;
    std::vector<Part> myParts; // the record, then those around where the walk stands
    std::size_t mySkippedBelow = std::numeric_limits<std::size_t>::max();
};
} // namespace

std::string reportValues(AxZedObjectParameters& record, AxSxpParameterDbEntry const& entry, Database const& database,
                         ReportFolder const& folder, std::vector<std::string>& tables)
{
    return RecordHtml(record, entry, database, folder, tables).write();
}
