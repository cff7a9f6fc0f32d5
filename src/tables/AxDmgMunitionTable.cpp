#include "AxDmgMunitionTable.h"

#include "AxGuarded.h"
#include "axTryNew.h"

AxDmgMunitionTable::~AxDmgMunitionTable() = default;

bool AxDmgMunitionTable::getProbabilities(AxSimMunition const& munition, AxString const& surface, double angle,
                                          double range, AxPrbRangeTableEntry* out, bool direct,
                                          AxSimMunition* matched) const
{
    auto const fill = [&]
    {
        AxDmgMunitionEntry const* const entry = lookupMunitionEntry(munition);
        if (!entry)
        {
            return false;
        }
        if (matched)
        {
            *matched = entry->munition();
        }
        return entry->getProbabilities(surface, angle, range, out, direct);
    };
    return axGuarded("no-probabilities", AxFilename::nullFilename(), false, fill);
}

AxDmgMunitionEntry* AxDmgMunitionTable::lookupMunitionEntry(AxSimMunition const& munition) const
{
    AxDmgMunitionEntry* best = nullptr;
    for (AxDmgMunitionEntry* entry : *this)
    {
        if (entry->munition().matchPattern(munition)) // as an equal one does
        {
            if (entry->munition() == munition)
            {
                return entry;
            }
            best = entry;
        }
    }
    return best;
}

double AxDmgMunitionTable::getMaximumDamageRadius(AxSimMunition const& munition) const
{
    AxDmgMunitionEntry const* const entry = lookupMunitionEntry(munition);
    return entry ? entry->getMaximumDamageRadius() : 0.0;
}

double AxDmgMunitionTable::getMaximumSuppressionRadius(AxSimMunition const& munition) const
{
    AxDmgMunitionEntry const* const entry = lookupMunitionEntry(munition);
    return entry ? entry->getMaximumSuppressionRadius() : 0.0;
}

AxDmgMunitionEntry* AxDmgMunitionTable::addMunitionEntry(AxDmgMunitionEntry const& entry)
{
    return addMunitionEntry(axTryNew<AxDmgMunitionEntry>(entry));
}

AxDmgMunitionEntry* AxDmgMunitionTable::addMunitionEntry(AxDmgMunitionEntry* entry)
{
    addToEnd(entry);
    return entry;
}

AxDmgMunitionEntry* AxDmgMunitionTable::addMunitionEntry(AxObjectType const& type)
{
    AxDmgMunitionEntry* const entry = addMunitionEntry(axTryNew<AxDmgMunitionEntry>());
    if (entry)
    {
        AxSimMunition munition;
        munition.setMunitionType(type);
        entry->setMunition(munition);
    }
    return entry;
}

char const* AxDmgMunitionTable::readerWriterType() const
{
    return "AxDmgMunitionTable";
}

char const* AxDmgMunitionTable::xmlType() const
{
    return AxRwList::xmlType();
}
