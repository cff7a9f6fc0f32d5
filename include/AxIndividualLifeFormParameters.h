#pragma once

#include "AxGroundVehicleParameters.h"
#include "AxRwIndividualLifeFormStateType.h"
#include "AxRwIndividualLifeFormWeaponStateType.h"

/// A person or animal that moves as a ground vehicle does. See AxHumanParameters for one that moves by animation.
class ZEDOBJPARAM_API AxIndividualLifeFormParameters
    : public AxObjectRecordOf<AxIndividualLifeFormParameters, AxGroundVehicleParameters, "individual-lifeform-param">
{
public:
    using AxObjectRecordOf::AxObjectRecordOf;
    ~AxIndividualLifeFormParameters() override;

    virtual AxLifeformState initialPosture() const { return myInitialPosture.value(); }
    virtual void setInitialPosture(AxLifeformState posture) { assignSpecified(myInitialPosture, posture); }
    virtual AxWeaponState initialWeaponState() const { return myInitialWeaponState.value(); }
    virtual void setInitialWeaponState(AxWeaponState state) { assignSpecified(myInitialWeaponState, state); }

protected:
    AxIndividualLifeFormParameters(AxIndividualLifeFormParameters const& other, AxSymbolString name,
                                   AxReaderWriterRegistry* parent)
        : AxIndividualLifeFormParameters(name, parent)
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
