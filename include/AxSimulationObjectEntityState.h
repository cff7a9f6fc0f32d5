#pragma once

#include "AxRwReal.h"
#include "AxRwUnsigned.h"
#include "AxSimulationObjectBaseState.h"

/// A vehicle, person or the like in a saved group.
class ZEDOBJPARAM_API AxSimulationObjectEntityState
    : public AxRecordOf<AxSimulationObjectEntityState, "AxSimulationObjectEntityState", AxSimulationObjectBaseState>
{
public:
    using AxRecordOf::AxRecordOf;
    ~AxSimulationObjectEntityState() override;

    static char const* theXmlType() { return "AxSimulationObjectEntityState"; }
    AxSimulationObjectEntityState* clone() const override { return AxRecordOf::copy(); }

    double speed() const { return mySpeed; }
    void setSpeed(double speed) { assignSpecified(mySpeed, speed); }
    unsigned appearance() const { return myAppearance; }
    void setAppearance(unsigned appearance) { assignSpecified(myAppearance, appearance); }

private:
    AxRwReal mySpeed{{"speed", "m/s", "Speed along its heading."}, registry()};
    AxRwUnsigned myAppearance{{"appearance", "", "Appearance as a word of bits (IEEE 1278.1)."}, registry()};
};
