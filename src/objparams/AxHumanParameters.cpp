#include "AxHumanParameters.h"

AxHumanParameters::AxHumanParameters(AxSymbolString name, AxReaderWriterRegistry* parent, AxEnvironmentPtr const& env,
                                     AxEnvValuePtr const* node)
    : AxObjectRecordOf(name, parent, env, node)
{
    myInitialPosture.setValueSpecified(true, false);
    myInitialWeaponState.setValueSpecified(true, false);
    setDeadReckoningAlgorithm(AxDeadReckonDrmFPW);
    setCanPivot(true);
    setMaxPivotSpeed(2.5);
    // A body of 1.82 m, its origin half-way up, that stands on its soles.
    setBoundingVolume({-0.2, -0.2, -0.91}, {0.2, 0.2, 0.91});
    setLeftSupport({0.1, -0.1, 0.91});
    setRightSupport({0.1, 0.1, 0.91});
    setOtherSupport({-0.1, 0.0, 0.91});
    setMaxSpeed(4.5);
    setMaxReverseSpeed(1.0);
    setTurningRadius(0.1);
    setOrderedSpeed(1.5);
    setMaxAcceleration(3.5);
    setMaxStoppingDeceleration(4.0);
    setFuelEfficiency(1000.0);
    defaultDeadReckoningThresholds().setTranlationThreshold(0.25);
}

AxHumanParameters::~AxHumanParameters() = default;
