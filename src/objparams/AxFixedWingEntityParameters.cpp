#include "AxFixedWingEntityParameters.h"

AxFixedWingEntityParameters::AxFixedWingEntityParameters(AxSymbolString name, AxReaderWriterRegistry* parent,
                                                         AxEnvironmentPtr const& env, AxEnvValuePtr const* node)
    : AxObjectRecordOf(name, parent, env, node)
{
    myOtherSupport.addAlias("nose-support");
    myLeftSupport.addAlias("left-wing-support");
    myRightSupport.addAlias("right-wing-support");
    AxFixedWingEntityParameters::setDefaults();
}

AxFixedWingEntityParameters::~AxFixedWingEntityParameters() = default;

void AxFixedWingEntityParameters::setDefaults()
{
    assignDefault(defaultDeadReckoningAlgorithm(), AxDeadReckonDrmRVW);
    assignDefault(myOrderedSpeed, 150.0);
    assignDefault(myMaxSpeed, 300.0);
    assignDefault(myFuelEfficiency, 1000.0);
    assignDefault(myTurningRadius, 20.0);
    assignDefault(myMaxDeceleration, 20.0);
    assignDefault(myOtherSupport, AxVector64(2.5, 0.0, 2.0));
}
