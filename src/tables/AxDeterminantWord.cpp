#include "AxDeterminantWord.h"

#include "AxFaultAt.h"
#include "AxSourceScope.h"
#include "AxlObj.h"

#include <algorithm>
#include <iterator>

namespace
{
constexpr std::string_view theDeterminants[] = {"range-list", "coefficients"};

bool isDeterminant(AxlObj const* head)
{
    return std::ranges::find(theDeterminants, head->text()) != std::end(theDeterminants);
}

/// What stands first; a word without a value gives way to a determinant that is there.
AxlObj const* wordOf(AxlObj const* determinant)
{
    AxlObj const* const first = determinant->cdr()->car();
    if (first->isPair())
    {
        return first->car();
    }
    AxlObj const* rest = determinant->cdr();
    while (rest->isPair() && !(rest->car()->isPair() && isDeterminant(rest->car()->car())))
    {
        rest = rest->cdr();
    }
    return rest->isPair() && isDeterminant(first) ? rest->car()->car() : first;
}
} // namespace

AxlObj const* axDeterminantWord(AxlObj const* element)
{
    for (AxlObj const* items = element->cdr(); items->isPair(); items = items->cdr())
    {
        if (items->car()->car()->text() == "range-determinant")
        {
            return wordOf(items->car());
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
