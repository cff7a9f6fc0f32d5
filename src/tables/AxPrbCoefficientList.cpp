#include "AxPrbCoefficientList.h"

#include "AxFaultAt.h"
#include "AxIsReference.h"
#include "AxReaderWriterFactory.h"
#include "AxStreams.h"
#include "AxlObj.h"

static AxTypeEntry<AxPrbCoefficientList> const prbCoefficientListEntry;

AxPrbCoefficientList::~AxPrbCoefficientList() = default;

bool AxPrbCoefficientList::getProbabilities(double range, AxPrbRangeTableEntry* out) const
{
    if (!out)
    {
        AxWarn("AxPrbCoefficientList::getProbabilities - can't fill in null entry\n");
        return false;
    }
    AxPrbRangeTableEntry::Refill refill(*out, range);
    for (AxPrbProbabilityCoefficients const* polynomial : *this)
    {
        refill.add(polynomial->AxReaderWriter::name(), polynomial->probability(range));
    }
    return true;
}

double AxPrbCoefficientList::maxRangeValue() const
{
    double best = 0.0;
    for (AxPrbProbabilityCoefficients const* polynomial : *this)
    {
        double const reach = polynomial->solveForMaximum();
        if (reach > best)
        {
            best = reach;
        }
    }
    return best;
}

AxlObjPtr AxPrbCoefficientList::getData(AxlObjPtr const& item, AxFilenameList const& files,
                                        AxBindingsList const& bindings)
{
    AxlObj const* bad = item->cdr();
    bool const isReference = axIsReference(bad);
    while (bad->car()->isNumber())
    {
        bad = bad->cdr();
    }
    if (bad->isPair() && !isReference)
    {
        AxDiagnostics::report(axFaultAt(AxSeverity::Error, "wrong-kind", bad->car(),
                                        "a polynomial expects numbers, the highest power first; it is not read"));
        keepElement(item.get());
        return item;
    }
    return AxRwTemplatedListPtr::getData(item, files, bindings);
}

char const* AxPrbCoefficientList::readerWriterType() const
{
    return "AxPrbCoefficientList";
}
