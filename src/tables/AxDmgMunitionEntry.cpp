#include "AxDmgMunitionEntry.h"

#include <algorithm>

AxDmgMunitionEntry::AxDmgMunitionEntry() : AxDmgMunitionEntry(elementWord(), nullptr) {}

AxDmgMunitionEntry::AxDmgMunitionEntry(AxSymbolString name, AxReaderWriterRegistry* parent) : AxRecordOf(name, parent)
{
    myDirectDamageFile.setContent(&myDirectDamage);
    myCollateralDamageFile.setContent(&myCollateralDamage);
}

AxDmgMunitionEntry::AxDmgMunitionEntry(AxDmgMunitionEntry const& other, AxReaderWriterRegistry* registry)
    : AxDmgMunitionEntry(other.AxReaderWriter::name(), registry)
{
    assign(other);
}

AxDmgMunitionEntry::~AxDmgMunitionEntry() = default;

AxDmgMunitionEntry& AxDmgMunitionEntry::operator=(AxDmgMunitionEntry const& other)
{
    assign(other);
    return *this;
}

void AxDmgMunitionEntry::setMunition(AxSimMunition const& munition)
{
    myMunition = munition;
    myMunition.setValueSpecified(true, true);
}

bool AxDmgMunitionEntry::getProbabilities(AxString const& surface, double angle, double range,
                                          AxPrbRangeTableEntry* out, bool direct) const
{
    return (direct ? myDirectDamage : myCollateralDamage).getProbabilities(surface, angle, range, out);
}

double AxDmgMunitionEntry::getMaximumDamageRadius() const
{
    return std::max(myDirectDamage.getMaximumDamageRadius(), myCollateralDamage.getMaximumDamageRadius());
}

double AxDmgMunitionEntry::getMaximumSuppressionRadius() const
{
    return std::max(suppressionDetonationRange(), suppressionLofRange());
}

AxSymbolString AxDmgMunitionEntry::elementWord()
{
    static AxSymbolString const word("ammo-entry");
    return word;
}
