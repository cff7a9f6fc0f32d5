#pragma once

#include "AxFormationTable.h"
#include "AxMovingObjectParameters.h"

/// A unit that is made of subordinate objects, and the formations in which they can be arranged.
class ZEDOBJPARAM_API AxAggregateObjectParameters
    : public AxObjectRecordOf<AxAggregateObjectParameters, AxMovingObjectParameters, "aggregate-object-param">
{
public:
    using AxObjectRecordOf::AxObjectRecordOf;
    ~AxAggregateObjectParameters() override;
    AxAggregateObjectParameters& operator=(AxAggregateObjectParameters const& other);

    // ---- The order of the virtual operations is part of the interface. ----
protected:
    AxAggregateObjectParameters(AxAggregateObjectParameters const& other, AxSymbolString name,
                                AxReaderWriterRegistry* parent)
        : AxAggregateObjectParameters(name, parent)
    {
        AxZedObjectParameters::operator=(other);
    }

    virtual AxFormationTable* createFormationTable(AxSymbolString name, AxReaderWriterRegistry* registry);

public:
    /// The formation of that name, else the default one. `foundName` (null: not wanted) takes the name of what was
    /// found. Null when the table is empty and, after a warning, before `init`.
    virtual AxFormation* getFormation(AxString const& name, AxString* foundName) const;
    /// Null as for `getFormation`.
    virtual AxFormation* getDefaultFormation() const;
    // ---- End of the virtual operations. ----

    /// Makes the formation table, too, where it is missing.
    bool init() override;

    bool canHaveSubordinates() const { return myCanHaveSubordinates; }
    void setCanHaveSubordinates(bool can) { assignSpecified(myCanHaveSubordinates, can); }
    /// Null before `init`.
    AxFormationTable* formationTable() { return myFormationTable.get(); }
    AxFormationTable const* formationTable() const { return myFormationTable.get(); }

private:
    AxFormationTable const* tableOrWarning() const;

    AxRwBoolean myCanHaveSubordinates{
        {"can-have-subordinates", "", "Whether other objects can join the unit."}, true, registry()};
    std::unique_ptr<AxFormationTable> myFormationTable;
};
