#include "EntryCheck.h"

#include <algorithm>
#include <utility>

#include "AxDiagnostic.h"
#include "Findings.h"

namespace
{
/// A warning at an entry: where it is listed, or at its element.
AxDiagnostic warningAt(ReadEntry const& entry, char const* code, std::string text)
{
    AxDiagnostic finding;
    finding.severity = AxSeverity::Warning;
    finding.code = code;
    finding.file = entry.place.file;
    finding.line = entry.place.line;
    finding.column = entry.place.column;
    finding.text = std::move(text);
    return finding;
}

std::string placeOf(ReadEntry const& entry)
{
    return entry.isElement() ? "in " + entry.file : "in line " + std::to_string(entry.place.line);
}

/// Two entries of one type, the earlier first. Within one entity file it was told when that was read.
void reportRepeated(ReadEntry const& earlier, ReadEntry const& later, Findings& findings)
{
    bool const isTold = later.isElement() && earlier.isElement() && later.file == earlier.file && !later.isMatchType;
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
