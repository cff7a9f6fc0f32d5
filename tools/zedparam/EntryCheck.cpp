#include "EntryCheck.h"

#include <algorithm>
#include <utility>

#include "AxDiagnostic.h"
#include "AxZedXmlUtils.h"
#include "Findings.h"

namespace
{
bool isListed(ReadEntry const& entry)
{
    return !entry.place.file.empty();
}

/// A warning at an entry: where it is listed, or at the element of its type.
AxDiagnostic warningAt(ReadEntry const& entry, char const* code, std::string text)
{
    AxDiagnostic finding;
    finding.severity = AxSeverity::Warning;
    finding.code = code;
    finding.file = isListed(entry) ? entry.place.file : entry.file;
    finding.line = entry.place.line;
    finding.column = entry.place.column;
    finding.text = std::move(text);
    if (!isListed(entry))
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

std::string placeOf(ReadEntry const& entry)
{
    return isListed(entry) ? "in line " + std::to_string(entry.place.line) : "in " + entry.file;
}

/// Two entries of one type, the earlier first. Within one entity file it was told when that was read.
void reportRepeated(ReadEntry const& earlier, ReadEntry const& later, Findings& findings)
{
    bool const isTold = !isListed(later) && !isListed(earlier) && later.file == earlier.file && !later.isMatchType;
    bool const isKept = later.isMatchType && !earlier.isMatchType;
    if (!isTold)
    {
        findings.add(warningAt(later, "repeated-type",
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

void checkEntries(std::vector<ReadEntry> entries, Findings& findings)
{
    for (ReadEntry const& entry : entries)
    {
        if (!canBeAsked(entry.type))
        {
            findings.add(warningAt(entry, "hidden-entry",
                                   "never answers: no object has the type " + entry.type.string().string()));
        }
    }
    std::ranges::stable_sort(entries, {}, &ReadEntry::type);
    for (std::size_t i = 1; i < entries.size(); ++i)
    {
        if (entries[i].type == entries[i - 1].type)
        {
            reportRepeated(entries[i - 1], entries[i], findings);
        }
    }
}
