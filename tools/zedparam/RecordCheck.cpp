#include "RecordCheck.h"

#include <algorithm>
#include <set>
#include <utility>
#include <vector>

#include "AxPrbRangeList.h"
#include "AxReaderWriterFile.h"
#include "AxRwList.h"
#include "AxRwProperty.h"
#include "AxZedObjectParameters.h"
#include "ElementSource.h"
#include "Findings.h"
#include "RangeText.h"
#include "RowCheck.h"
#include "Source.h"

namespace
{
AxDiagnostic warning(char const* code, std::string file, std::string text)
{
    AxDiagnostic finding;
    finding.severity = AxSeverity::Warning;
    finding.code = code;
    finding.file = std::move(file);
    finding.text = std::move(text);
    return finding;
}

std::string placeOf(AxReaderWriter const& rw)
{
    std::string place = "\"" + rw.name().string().string() + "\"";
    AxReaderWriterRegistry const* registry = rw.parentRegistry();
    if (registry != nullptr && registry->owner() != nullptr && !registry->owner()->name().isNull())
    {
        place += " of \"" + registry->owner()->name().string().string() + "\"";
    }
    return place;
}

/// Walks a record and the contents of its files, and knows for each member where it is read.
class RecordCheck
{
public:
    RecordCheck(std::string file, Findings& findings) : myFiles{std::move(file)}, myFindings(findings) {}

    void run(AxZedObjectParameters& record)
    {
        myElement = record.objectNode();
        visitBelow(record);
        for (std::size_t const place : myFilesWithRows)
        {
            checkRows(myFiles[place], myFindings);
        }
        for (auto const& [name, value] : record.unboundVariables())
        {
            reportVariable(name.string());
        }
    }

private:
    using Kind = AxReaderWriterFile::ContentKind;

    void visit(AxSymbolString keyword, AxReaderWriter& rw)
    {
        myPath.push_back({keyword, &rw});
        checkRange(rw);
        visitBelow(rw);
        myPath.pop_back();
    }

    void visitBelow(AxReaderWriter& rw)
    {
        if (AxReaderWriterRegistry const* registry = rw.registryIfAny())
        {
            visitMembers(*registry);
        }
        if (auto const* list = dynamic_cast<AxRwList const*>(&rw))
        {
            if (dynamic_cast<AxPrbRangeList const*>(list) != nullptr)
            {
                myFilesWithRows.insert(myFile);
            }
            for (AxListItem const* item = list->first(); item != nullptr; item = item->next())
            {
                AxReaderWriter& element = *AxRwList::element(item);
                visit(element.name(), element);
            }
        }
        auto const* property = dynamic_cast<AxRwProperty const*>(&rw);
        if (property != nullptr && property->rwValue() != nullptr)
        {
            visitBelow(*property->rwValue());
        }
        auto const* file = dynamic_cast<AxReaderWriterFile const*>(&rw);
        if (file != nullptr && file->content() != nullptr && file->contentKind() != Kind::Member)
        {
            visitContent(*file);
        }
    }

    void visitMembers(AxReaderWriterRegistry const& registry)
    {
        std::vector<AxReaderWriter const*> contents;
        for (std::size_t i = 0; i < registry.size(); ++i)
        {
            auto const* file = dynamic_cast<AxReaderWriterFile const*>(registry.entry(i).member);
            if (file != nullptr && file->contentKind() == Kind::Member && !file->foundFilename().isNull())
            {
                contents.push_back(file->content());
                visitContent(*file);
            }
        }
        for (std::size_t i = 0; i < registry.size(); ++i)
        {
            AxRegistryEntry const entry = registry.entry(i);
            if (!entry.content && std::ranges::find(contents, entry.member) == contents.end())
            {
                visit(entry.keyword, *entry.member);
            }
        }
    }

    void visitContent(AxReaderWriterFile const& file)
    {
        if (file.foundFilename().isNull())
        {
            visitBelow(*file.content());
            return;
        }
        std::vector<SourceStep> const outer = std::exchange(myPath, {});
        std::size_t const outerFile = std::exchange(myFile, myFiles.size());
        myFiles.push_back(file.foundFilename().native());
        visitBelow(*file.content());
        myFile = outerFile;
        myPath = outer;
    }

    void checkRange(AxReaderWriter const& rw)
    {
        if (std::string const fault = rw.valueSpecified() ? rangeFault(rw) : std::string(); !fault.empty())
        {
            AxDiagnostic finding = warning("out-of-range", myFiles[myFile], placeOf(rw) + " is " + fault);
            if (myFile == 0 && myElement)
            {
                setPlace(finding, ElementSource(myElement).value(myPath));
            }
            else
            {
                Source::setPlace(finding, Source(myFiles[myFile]).value(myPath));
            }
            myFindings.add(std::move(finding));
        }
    }

    static void setPlace(AxDiagnostic& finding, AxEnvValue const* node)
    {
        if (node != nullptr)
        {
            finding.line = node->line();
            finding.column = node->column();
        }
    }

    void reportVariable(std::string const& name)
    {
        AxDiagnostic finding =
            warning("unbound-variable", myFiles.front(), "nothing binds the variable \"" + name + "\"");
        if (myElement)
        {
            setPlace(finding, ElementSource(myElement).reference(name));
        }
        for (std::string const& file : myFiles)
        {
            if (finding.line != 0)
            {
                break;
            }
            Source const source(file);
            if (AxlObj const* cell = source.reference(name))
            {
                finding.file = file;
                Source::setPlace(finding, cell);
                break;
            }
        }
        myFindings.add(std::move(finding));
    }

    std::vector<std::string> myFiles; // the record's own first
    std::size_t myFile = 0;           // the one that is walked
    std::set<std::size_t> myFilesWithRows;
    std::vector<SourceStep> myPath; // from its first expression inwards
    AxEnvValuePtr myElement;        // of the record when it comes from an entity file
    Findings& myFindings;
};
} // namespace

void checkRecord(std::string const& file, AxZedObjectParameters& record, Findings& findings)
{
    RecordCheck(file, findings).run(record);
}
