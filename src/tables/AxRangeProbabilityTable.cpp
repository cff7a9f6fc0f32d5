#include "AxRangeProbabilityTable.h"

#include "AxDetectionPrbRangeCalcEntry.h"
#include "AxDetectionPrbRangeLookupEntry.h"
#include "AxDeterminantWord.h"
#include "AxGuarded.h"
#include "AxIsForeign.h"
#include "AxReaderWriterFactory.h"
#include "AxStreams.h"
#include "AxTypeLookup.h"

static AxTypeEntry<AxRangeProbabilityTable> const rangeProbabilityTableEntry;

AxRangeProbabilityTable::AxRangeProbabilityTable(AxRangeProbabilityTable const& other) : AxRwList(other)
{
    copyList(other);
    carryState(other);
}

AxRangeProbabilityTable::~AxRangeProbabilityTable()
{
    AxRwList::removeAndDeleteAll();
}

AxRangeProbabilityTable& AxRangeProbabilityTable::operator=(AxRangeProbabilityTable const& other)
{
    if (this != &other)
    {
        AxRwList::removeAndDeleteAll();
        copyList(other);
        carryState(other);
    }
    return *this;
}

void AxRangeProbabilityTable::copyList(AxRangeProbabilityTable const& other)
{
    if (&other == this)
    {
        return;
    }
    for (AxListItem const* item = other.first(); item; item = item->next())
    {
        addDetectionProbabilityEntry(*static_cast<AxRangeProbEntry const*>(element(item)));
    }
}

bool AxRangeProbabilityTable::getProbabilities(AxEntityType const& type, double range, AxPrbRangeTableEntry* out,
                                               AxEntityType* matched) const
{
    auto const fill = [&]
    {
        auto const* const found = static_cast<AxRangeProbEntry const*>(element(lookupDetectProbEntry(type)));
        if (!found)
        {
            return false;
        }
        if (matched)
        {
            *matched = found->entityType();
        }
        found->getProbabilities(range, out);
        return true;
    };
    return axGuarded("no-probabilities", AxFilename::nullFilename(), false, fill);
}

AxRangeProbEntry* AxRangeProbabilityTable::addDetectionProbabilityEntry(AxRangeProbEntry const& entry)
{
    AxRangeProbEntry* const copy = entry.clone(nullptr);
    if (!copy)
    {
        AxWarn("Memory allocation failed in AxRangeProbabilityTable::copyList\n");
    }
    return addDetectionProbabilityEntry(copy);
}

AxRangeProbEntry* AxRangeProbabilityTable::addDetectionProbabilityEntry(AxRangeProbEntry* entry)
{
    addToEnd(entry);
    return entry;
}

AxListItem* AxRangeProbabilityTable::lookupDetectProbEntry(AxEntityType const& type) const
{
    return axLookUpByType<AxRangeProbEntry>(*this, type);
}

AxlObjPtr AxRangeProbabilityTable::getData(AxlObjPtr const& item, AxFilenameList const& files,
                                           AxBindingsList const& bindings)
{
    AxlObj const* const word = axDeterminantWord(item.get());
    AxRangeProbEntry* made = nullptr;
    if (word->text() == "range-list")
    {
        made = new AxDetectionPrbRangeLookupEntry;
    }
    else if (word->text() == "coefficients")
    {
        made = new AxDetectionPrbRangeCalcEntry;
    }
    else
    {
        axReportDeterminant(item.get(), word, "detect prob table");
        keepElement(item.get());
        return item;
    }
    axReportMisspelt(item.get(), AxRangeProbEntry::elementWord());
    made->getSelf(item, files, bindings);
    addDetectionProbabilityEntry(made);
    return item;
}

char const* AxRangeProbabilityTable::readerWriterType() const
{
    return "AxRangeProbabilityTable";
}
