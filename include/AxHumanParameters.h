#pragma once

#include "AxMovingObjectParameters.h"
#include "AxRwIndividualLifeFormStateType.h"
#include "AxRwIndividualLifeFormWeaponStateType.h"

/// A person who moves by animation. A new record has all its own defaults specified, so they are written.
class ZEDOBJPARAM_API AxHumanParameters
    : public AxObjectRecordOf<AxHumanParameters, AxMovingObjectParameters, "human-param">
{
public:
    AxHumanParameters(AxSymbolString name, AxReaderWriterRegistry* parent, AxEnvironmentPtr const& env = {},
                      AxEnvValuePtr const* node = nullptr);
    ~AxHumanParameters() override;

    virtual AxLifeformState initialPosture() const { return myInitialPosture.value(); }
    virtual void setInitialPosture(AxLifeformState posture) { assignSpecified(myInitialPosture, posture); }
    virtual AxWeaponState initialWeaponState() const { return myInitialWeaponState.value(); }
    virtual void setInitialWeaponState(AxWeaponState state) { assignSpecified(myInitialWeaponState, state); }

protected:
    AxHumanParameters(AxHumanParameters const& other, AxSymbolString name, AxReaderWriterRegistry* parent)
        : AxHumanParameters(name, parent)
    {
        AxZedObjectParameters::operator=(other);
    }

private:
    AxRwIndividualLifeFormStateType myInitialPosture{
        {"initial-posture", "", "Posture at the start, as the protocol counts them.", {0.0, 15.0}},
        AxLifeformUprightStanding,
        registry()};
    AxRwIndividualLifeFormWeaponStateType myInitialWeaponState{
        {"initial-weapon-state",
         "",
         "How the weapon is carried at the start: 0 none, 1 stowed, 2 deployed, 3 firing.",
         {0.0, 3.0}},
        AxWeaponDeployed,
        registry()};
};
