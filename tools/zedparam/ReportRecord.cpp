#include "ReportRecord.h"

#include <algorithm>
#include <map>
#include <utility>

#include "AxComponentDescriptor.h"
#include "AxReaderWriterFile.h"
#include "AxRwList.h"
#include "AxRwProperty.h"
#include "AxZedObjectParameters.h"
#include "ElementSource.h"
#include "Markup.h"
#include "RangeText.h"
#include "ReportPage.h"
#include "ShownPath.h"
#include "Source.h"

namespace
{
bool hasParts(AxReaderWriter const& rw)
{
    AxReaderWriterRegistry const* const registry = rw.registryIfAny();
    return (registry != nullptr && registry->count() != 0) || dynamic_cast<AxRwList const*>(&rw) != nullptr;
}

/// The record or list behind a member; null for a plain value.
AxReaderWriter* partBehind(AxReaderWriter& rw)
{
    auto* const property = dynamic_cast<AxRwProperty*>(&rw);
    if (property != nullptr && property->rwValue() != nullptr)
    {
        return hasParts(*property->rwValue()) ? property->rwValue() : nullptr;
    }
    auto* const file = dynamic_cast<AxReaderWriterFile*>(&rw);
    if (file != nullptr)
    {
        bool const isOwn = file->content() != nullptr && file->contentKind() != AxReaderWriterFile::ContentKind::Member;
        return isOwn ? file->content() : nullptr;
    }
    return hasParts(rw) ? &rw : nullptr;
}

std::string trimmed(std::string const& text)
{
    std::size_t const start = text.find_first_not_of(" \n");
    return start == std::string::npos ? "" : text.substr(start, text.find_last_not_of(" \n") + 1 - start);
}

class RecordHtml
{
public:
    RecordHtml(std::string file, ReportFolder const& folder, std::vector<std::string>& tables)
        : myFiles{std::move(file)}, myFolder(folder), myTables(tables)
    {
    }

    std::string write(AxZedObjectParameters& record)
    {
        myElement = record.objectNode();
        writePart(record, 3);
        return std::move(myOut);
    }

private:
    struct Member
    {
        AxSymbolString keyword;
        AxReaderWriter* rw;
    };

    /// Its members and elements: plain values as a table, then the others one by one.
    void writePart(AxReaderWriter& rw, int level)
    {
        std::vector<Member> values;
        std::vector<Member> parts;
        for (Member const& member : membersOf(rw))
        {
            bool const isPart = partBehind(*member.rw) != nullptr && !isLinked(*member.rw);
            (isPart ? parts : values).push_back(member);
        }
        writeValues(values);
        for (Member const& part : parts)
        {
            if (part.rw->isDue())
            {
                writeSection(part, level);
            }
        }
    }

    std::vector<Member> membersOf(AxReaderWriter& rw) const
    {
        std::vector<Member> members;
        if (AxReaderWriterRegistry const* registry = rw.registryIfAny())
        {
            std::vector<AxReaderWriter const*> read; // from files of their own
            for (std::size_t i = 0; i < registry->size(); ++i)
            {
                auto const* const file = dynamic_cast<AxReaderWriterFile const*>(registry->entry(i).member);
                if (file != nullptr && !file->foundFilename().isNull())
                {
                    read.push_back(file->content());
                }
            }
            for (std::size_t i = 0; i < registry->size(); ++i)
            {
                AxRegistryEntry const entry = registry->entry(i);
                if (!entry.content && !entry.keyword.isNull() && std::ranges::find(read, entry.member) == read.end())
                {
                    members.push_back({entry.keyword, entry.member});
                }
            }
        }
        if (auto const* list = dynamic_cast<AxRwList const*>(&rw))
        {
            for (AxListItem const* item = list->first(); item != nullptr; item = item->next())
            {
                AxReaderWriter* const element = AxRwList::element(item);
                members.push_back({element->name(), element});
            }
        }
        return members;
    }

    void writeValues(std::vector<Member> const& values)
    {
        if (values.empty())
        {
            return;
        }
        bool const areDefaults = std::ranges::none_of(values, [](Member const& value) { return value.rw->isDue(); });
        myOut += std::string("<table class=\"values") + (areDefaults ? " by-default" : "") +
                 "\"><thead><tr><th scope=\"col\">Keyword</th><th scope=\"col\">Value</th><th scope=\"col\">Unit</th>"
                 "<th scope=\"col\">Origin</th><th scope=\"col\">Meaning</th></tr></thead>\n<tbody>\n";
        for (Member const& value : values)
        {
            writeValue(value);
        }
        myOut += "</tbody></table>\n";
    }

    void writeValue(Member const& member)
    {
        AxReaderWriter& rw = *member.rw;
        AxKeyword const* const description = rw.description();
        bool const isDefault = !rw.isDue();
        std::string text;
        rw.putData(text, 0);
        myOut += std::string("<tr") + (isDefault ? " class=\"by-default\"" : "") + "><th scope=\"row\">" +
                 wordFor(member) + "</th><td>" + linked(rw, trimmed(text)) + "</td><td>" +
                 markup(description != nullptr ? description->unit : "") + "</td><td>" + originOf(member) +
                 "</td><td>" + markup(description != nullptr ? description->help : "");
        if (description != nullptr && description->range.isBounded())
        {
            myOut += markup(" (" + rangeText(description->range) + ")");
        }
        myOut += "</td></tr>\n";
    }

    static std::string wordFor(Member const& member)
    {
        return member.keyword.isNull() ? "item" : htmlCode(member.keyword.view());
    }

    void writeSection(Member const& member, int level)
    {
        AxReaderWriter& rw = *member.rw;
        std::string const heading = "h" + std::to_string(std::min(level, 6));
        AxKeyword const* const description = rw.description();
        auto const* const component = dynamic_cast<AxComponentDescriptor const*>(&rw);
        myOut += "<" + heading + ">" + wordFor(member);
        if (component != nullptr)
        {
            myOut += " <span class=\"type\">" + markup(component->type().string()) + "</span>";
        }
        myOut += "</" + heading + ">\n<div class=\"part\">\n";
        if (description != nullptr && *description->help != '\0')
        {
            myOut += "<p>" + markup(description->help) + "</p>\n";
        }
        myPath.push_back({member.keyword, &rw});
        auto const* const file = dynamic_cast<AxReaderWriterFile const*>(&rw);
        if (file != nullptr && !file->foundFilename().isNull())
        {
            myOut += "<p>Read from " + htmlCode(shownPath(file->foundFilename().native())) + "</p>\n";
            std::vector<SourceStep> const outer = std::exchange(myPath, {});
            myFiles.push_back(file->foundFilename().native());
            writePart(*partBehind(rw), level + 1);
            myFiles.pop_back();
            myPath = outer;
        }
        else
        {
            writePart(*partBehind(rw), level + 1);
        }
        myPath.pop_back();
        myOut += "</div>\n";
    }

    /// Whether a page of its own tells what is behind the member.
    bool isLinked(AxReaderWriter const& rw) const
    {
        auto const* const file = dynamic_cast<AxReaderWriterFile const*>(&rw);
        return file != nullptr && !myFolder.pageOf(file->foundFilename().native()).empty();
    }

    std::string linked(AxReaderWriter const& rw, std::string const& text)
    {
        if (!isLinked(rw))
        {
            return htmlCode(text);
        }
        std::string const file = static_cast<AxReaderWriterFile const&>(rw).foundFilename().native();
        myTables.push_back(shownPath(file));
        return htmlLink(theReportRoot + myFolder.pageOf(file), text);
    }

    std::string originOf(Member const& member)
    {
        AxReaderWriter const& rw = *member.rw;
        if (rw.inherited())
        {
            return "inherited";
        }
        if (!rw.valueSpecified())
        {
            return "default";
        }
        myPath.push_back({member.keyword, &rw});
        std::string origin = placeOf();
        myPath.pop_back();
        if (rw.isVariableReference())
        {
            origin += (origin.empty() ? "" : ", ") + ("variable " + htmlCode(rw.variableName().view()));
        }
        return origin.empty() ? "default" : origin; // some classes count their default as given
    }

    std::string placeOf()
    {
        bool const isOwn = myFiles.size() == 1;
        unsigned line = 0;
        if (isOwn && myElement)
        {
            AxEnvValue const* const node = ElementSource(myElement).value(myPath);
            line = node != nullptr ? node->line() : 0;
        }
        else
        {
            AxlObj const* const cell =
                mySources.try_emplace(myFiles.back(), myFiles.back()).first->second.value(myPath);
            line = cell != nullptr ? cell->line() : 0;
        }
        if (line == 0)
        {
            return "";
        }
        std::string const number = std::to_string(line);
        std::string const file = AxFilename(myFiles.back()).stripPath().string().string();
        return isOwn ? htmlLink("#L" + number, "line " + number) : markup(file + ", line " + number);
    }

    std::vector<std::string> myFiles; // the record's own, then those read on the way to where the walk stands
    ReportFolder const& myFolder;
    std::vector<std::string>& myTables;
    std::map<std::string, Source> mySources;
    std::vector<SourceStep> myPath; // in the file
    AxEnvValuePtr myElement;
    std::string myOut;
};
} // namespace

std::string reportValues(AxZedObjectParameters& record, std::string const& file, ReportFolder const& folder,
                         std::vector<std::string>& tables)
{
    return RecordHtml(file, folder, tables).write(record);
}
