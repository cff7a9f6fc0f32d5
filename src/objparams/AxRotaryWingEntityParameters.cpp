#include "AxRotaryWingEntityParameters.h"

AxRotaryWingEntityParameters::AxRotaryWingEntityParameters(AxSymbolString name, AxReaderWriterRegistry* parent,
                                                           AxEnvironmentPtr const& env, AxEnvValuePtr const* node)
    : AxObjectRecordOf(name, parent, env, node)
{
    myOtherSupport.addAlias("nose-support");
    AxRotaryWingEntityParameters::setDefaults();
}

AxRotaryWingEntityParameters::~AxRotaryWingEntityParameters() = default;

void AxRotaryWingEntityParameters::setDefaults()
{
    assignDefault(defaultDeadReckoningAlgorithm(), AxDeadReckonDrmRVW);
    assignDefault(myOrderedSpeed, 150.0);
    assignDefault(myMaxSpeed, 300.0);
    assignDefault(myFuelEfficiency, 1000.0);
    assignDefault(myTurningRadius, 20.0);
    assignDefault(myMaxDeceleration, 20.0);
    myMaxAltitude.reset();
    myMaxClimbRate.reset();
    myMaxYawRate.reset();
    myMaxPitchRate.reset();
}
