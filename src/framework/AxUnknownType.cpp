#include "AxUnknownType.h"

#include "AxDiagnostic.h"
#include "AxNearest.h"
#include "AxReadFrame.h"
#include "AxlObj.h"

void axReportUnknownType(std::string_view type, AxlObj const* cell, std::string const& statedLine,
                         std::span<std::string_view const> known)
{
    AxDiagnostic finding;
    finding.code = "unknown-type";
    if (cell)
    {
        finding.line = cell->line();
        finding.column = cell->column();
    }
    finding.path = AxReadFrame::path();
    finding.text = "unknown type \"" + std::string(type) + "\"";
    if (std::string_view const nearest = axNearest(type, known); !nearest.empty())
    {
        finding.hint = "did you mean \"" + std::string(nearest) + "\"?";
    }
    AxDiagnostics::reportStated(std::move(finding), statedLine);
}
