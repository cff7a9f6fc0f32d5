#include "AxDeterminantWord.h"

#include "AxFaultAt.h"
#include "AxSourceScope.h"
#include "AxlObj.h"

static constexpr std::string_view theDeterminants[] = {"range-list", "coefficients"};

AxlObj const* axDeterminantWord(AxlObj const* element)
{
    for (AxlObj const* items = element->cdr(); items->isPair(); items = items->cdr())
    {
        if (items->car()->car()->text() == "range-determinant")
        {
            AxlObj const* const first = items->car()->cdr()->car();
            return first->isPair() ? first->car() : first;
        }
    }
    return AxlObj::nilCell();
}

void axReportDeterminant(AxlObj const* element, AxlObj const* word, std::string const& table)
{
    std::string const text = word->pname().string();
    AxDiagnostic fault = axFaultAt(AxSeverity::Error, "unknown-determinant", word->nil() ? element : word,
                                   "no range determinant is called \"" + text + '"');
    if (AxSourceScope::isSettled(fault.file, fault.line, fault.column))
    {
        return; // the text ends in this element, which has been told
    }
    std::string_view const nearest = axNearest(text, theDeterminants);
    if (!nearest.empty())
    {
        fault.hint = "did you mean \"" + std::string(nearest) + "\"?";
    }
    AxDiagnostics::reportStated(std::move(fault), "Unrecognized range determinant " + text + " in " + table + '\n');
}
