#include "AxDmgSurfaceEntry.h"

#include "AxDeterminantWord.h"
#include "AxDmgAngleOfIncidenceRangeCalcTable.h"
#include "AxDmgAngleOfIncidenceRangeLookupTable.h"
#include "AxIsForeign.h"
#include "AxReaderWriterFactory.h"
#include "AxStreams.h"

#include <algorithm>
#include <memory>

static AxTypeEntry<AxDmgSurfaceEntry> const dmgSurfaceEntryEntry;

AxDmgSurfaceEntry::AxDmgSurfaceEntry(AxDmgSurfaceEntry const& other) : AxRwList(other)
{
    copyList(other);
    carryState(other);
}

AxDmgSurfaceEntry::~AxDmgSurfaceEntry()
{
    AxRwList::removeAndDeleteAll();
}

AxDmgSurfaceEntry& AxDmgSurfaceEntry::operator=(AxDmgSurfaceEntry const& other)
{
    if (this != &other)
    {
        AxRwList::removeAndDeleteAll();
        copyList(other);
        carryState(other);
    }
    return *this;
}

void AxDmgSurfaceEntry::copyList(AxDmgSurfaceEntry const& other)
{
    if (&other == this)
    {
        return;
    }
    for (AxDmgAngleOfIncidenceTable const* table : other)
    {
        if (AxDmgAngleOfIncidenceTable* const copy = table->clone(nullptr))
        {
            addToEnd(copy);
        }
        else
        {
            AxWarn("Error:  AxDmgSurfaceEntry::copyList -- Memory allocation failed.\n");
        }
    }
}

bool AxDmgSurfaceEntry::equals(AxDmgSurfaceEntry const& other) const
{
    return AxReaderWriter::name() == other.AxReaderWriter::name() && AxRwList::equals(other);
}

bool AxDmgSurfaceEntry::getProbabilities(double angle, double range, AxPrbRangeTableEntry* out) const
{
    for (AxDmgAngleOfIncidenceTable const* table : *this)
    {
        if (table->angleOfIncidence() >= angle)
        {
            table->getProbabilities(range, out);
            return true;
        }
    }
    AxWarn("No angleOfIncidence entry found for %f angle\n", angle);
    return false;
}

double AxDmgSurfaceEntry::getMaximumDamageRadius() const
{
    double radius = 0.0;
    for (AxDmgAngleOfIncidenceTable const* table : *this)
    {
        radius = std::max(radius, table->getMaximumDamageRadius());
    }
    return radius;
}

AxDmgAngleOfIncidenceTable* AxDmgSurfaceEntry::addAngleOfIncidenceTable(AxDmgAngleOfIncidenceTable const& table)
{
    return addAngleOfIncidenceTable(table.clone(nullptr));
}

AxDmgAngleOfIncidenceTable* AxDmgSurfaceEntry::addAngleOfIncidenceTable(AxDmgAngleOfIncidenceTable* table)
{
    if (!table)
    {
        AxWarn("Memory allocation failed in AxDmgSurfaceEntry::addAngleOfIncidenceTable()\n");
        return nullptr;
    }
    addToEnd(table);
    return table;
}

AxlObjPtr AxDmgSurfaceEntry::getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings)
{
    AxlObj const* const word = axDeterminantWord(item.get());
    std::unique_ptr<AxDmgAngleOfIncidenceTable> made;
    if (word->text() == "range-list")
    {
        made = std::make_unique<AxDmgAngleOfIncidenceRangeLookupTable>();
    }
    else if (word->text() == "coefficients")
    {
        made = std::make_unique<AxDmgAngleOfIncidenceRangeCalcTable>();
    }
    else
    {
        axReportDeterminant(item.get(), word, "damage table");
        keepElement(item.get());
        return item;
    }
    axReportMisspelt(item.get(), AxDmgAngleOfIncidenceTable::elementWord());
    made->getSelf(item, files, bindings);
    addAngleOfIncidenceTable(made.release());
    return item;
}

char const* AxDmgSurfaceEntry::readerWriterType() const
{
    return "AxDmgSurfaceEntry";
}
