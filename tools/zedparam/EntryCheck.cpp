#include "EntryCheck.h"

#include <algorithm>
#include <utility>

#include "AxDiagnostic.h"
#include "AxSxpParameterDbFileEntry.h"
#include "AxZedXmlUtils.h"
#include "Findings.h"
#include "ShownPath.h"

namespace
{
using Entry = EntryCheck::Entry;

/// A warning at an entry: where it is listed, or at the element of its type.
AxDiagnostic warningAt(std::string const& database, Entry const& entry, char const* code, std::string text)
{
    AxDiagnostic finding;
    finding.severity = AxSeverity::Warning;
    finding.code = code;
    finding.file = entry.file.empty() ? database : entry.file;
    finding.line = entry.line;
    finding.column = entry.column;
    finding.text = std::move(text);
    if (!entry.file.empty())
    {
        AxEnvironmentPtr const tree = AxZedXmlUtils::CreateZedXmlEnvironment(AxFilename(entry.file), false);
        AxEnvValuePtr const element = entry.isMatchType
                                          ? AxZedXmlUtils::findObjectElementByMatchType(tree, entry.type)
                                          : AxZedXmlUtils::findObjectElementByObjectType(tree, entry.type);
        finding.line = element ? element->line() : 0;
        finding.column = element ? element->column() : 0;
    }
    return finding;
}

std::string placeOf(Entry const& entry)
{
    return entry.file.empty() ? "in line " + std::to_string(entry.line) : "in " + shownPath(entry.file);
}

/// Two entries of one type, the earlier first. Within one entity file it was told when that was read.
void reportRepeated(std::string const& database, Entry const& earlier, Entry const& later, Findings& findings)
{
    bool const isTold = !later.file.empty() && later.file == earlier.file && !later.isMatchType;
    bool const isKept = later.isMatchType && !earlier.isMatchType;
    if (!isTold)
    {
        findings.add(warningAt(database, later, "repeated-type",
                               "the type " + later.type.string().string() + " has an entry " + placeOf(earlier) +
                                   " already; " + (isKept ? "that one answers" : "this one answers instead")));
    }
}

/// No object has a type with a negative field.
bool canBeAsked(AxObjectType const& type)
{
    return std::ranges::all_of(type.fields(), [](std::int32_t field) { return field >= AxObjectType::theWildcard; });
}
} // namespace

EntryCheck::~EntryCheck() = default;

void EntryCheck::entryAddedFor(AxSxpParameterDbFileEntry* fileEntry, AxSxpParameterDbEntry*)
{
    bool const isListed = fileEntry->line() != 0;
    myEntries.push_back({fileEntry->objectType(), fileEntry->typeIsMatchType(),
                         isListed ? std::string() : fileEntry->filename().native(), fileEntry->line(),
                         fileEntry->column()});
}

void EntryCheck::check(std::string const& database, std::vector<Entry> entries, Findings& findings)
{
    for (Entry const& entry : entries)
    {
        if (!canBeAsked(entry.type))
        {
            findings.add(warningAt(database, entry, "hidden-entry",
                                   "never answers: no object has the type " + entry.type.string().string()));
        }
    }
    std::ranges::stable_sort(entries, {}, &Entry::type);
    for (std::size_t i = 1; i < entries.size(); ++i)
    {
        if (entries[i].type == entries[i - 1].type)
        {
            reportRepeated(database, entries[i - 1], entries[i], findings);
        }
    }
}
