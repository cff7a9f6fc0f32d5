#include "AxAggregateObjectParameters.h"

#include "AxStreams.h"

namespace
{
constexpr AxKeyword theFormations{"formation-list", "", "Formations in which the subordinates can be arranged."};
}

AxAggregateObjectParameters::~AxAggregateObjectParameters() = default;

AxAggregateObjectParameters& AxAggregateObjectParameters::operator=(AxAggregateObjectParameters const& other)
{
    AxObjectRecordOf::operator=(other);
    return *this;
}

bool AxAggregateObjectParameters::init()
{
    if (!AxObjectRecordOf::init())
    {
        return false;
    }
    if (!myFormationTable)
    {
        myFormationTable.reset(createFormationTable(theFormations.text, registry()));
        if (myFormationTable)
        {
            myFormationTable->setValueSpecified(false, false);
            registry()->describe(myFormationTable.get(), theFormations, typeid(AxAggregateObjectParameters));
        }
    }
    return true;
}

AxFormationTable* AxAggregateObjectParameters::createFormationTable(AxSymbolString name,
                                                                    AxReaderWriterRegistry* registry)
{
    return new AxFormationTable(name, registry);
}

AxFormationTable const* AxAggregateObjectParameters::tableOrWarning() const
{
    if (!myFormationTable)
    {
        AxWarn("AxAggregateObjectParameters::getFormation() - NULL formation table\n");
    }
    return myFormationTable.get();
}

AxFormation* AxAggregateObjectParameters::getFormation(AxString const& name, AxString* foundName) const
{
    AxFormationTable const* const table = tableOrWarning();
    if (!table)
    {
        return nullptr;
    }
    AxFormationTableEntry* const named = table->lookup(name);
    AxFormationTableEntry* const entry = named ? named : table->defaultFormation();
    if (entry && foundName)
    {
        *foundName = entry->formationType();
    }
    return entry ? &entry->formation() : nullptr;
}

AxFormation* AxAggregateObjectParameters::getDefaultFormation() const
{
    AxFormationTable const* const table = tableOrWarning();
    AxFormationTableEntry* const entry = table ? table->defaultFormation() : nullptr;
    return entry ? &entry->formation() : nullptr;
}
