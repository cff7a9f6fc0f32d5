#include "AxIsForeign.h"

#include "AxFaultAt.h"
#include "AxNearest.h"
#include "AxReaderWriter.h"
#include "AxlObj.h"

bool axIsForeign(AxlObj const* element, AxReaderWriter& entry)
{
    AxlObj const* const head = element->car();
    if (head->text() == entry.AxReaderWriter::name().view() || (head->isString() && head->text().empty()))
    {
        return false;
    }
    for (AxlObj const* items = element->cdr(); items->isPair(); items = items->cdr())
    {
        AxSymbolString const keyword = items->car()->car()->symbol();
        if (!items->car()->isPair() || (!keyword.isNull() && entry.registry()->find(keyword)))
        {
            axReportMisspelt(element, entry.AxReaderWriter::name());
            return false; // an item, or a reference that stands for all of them
        }
    }
    AxDiagnostics::report(
        axFaultAt(AxSeverity::Warning, "unknown-element", head, "unknown element \"" + head->pname().string() + '"'));
    return true;
}

void axReportMisspelt(AxlObj const* element, AxSymbolString word)
{
    AxlObj const* const head = element->car();
    if (!head->isSymbol() || head->symbol() == word)
    {
        return;
    }
    std::string_view const expected = word.view();
    if (!axNearest(head->text(), {&expected, 1}).empty())
    {
        AxDiagnostics::report(axFaultAt(AxSeverity::Warning, "unknown-element", head,
                                        "expected (" + std::string(expected) + " ...), found \"" +
                                            std::string(head->text()) + "\", which is read as one"));
    }
}
