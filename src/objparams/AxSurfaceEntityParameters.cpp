#include "AxSurfaceEntityParameters.h"

AxSurfaceEntityParameters::AxSurfaceEntityParameters(AxSymbolString name, AxReaderWriterRegistry* parent,
                                                     AxEnvironmentPtr const& env, AxEnvValuePtr const* node)
    : AxObjectRecordOf(name, parent, env, node)
{
    AxSurfaceEntityParameters::setDefaults();
}

AxSurfaceEntityParameters::~AxSurfaceEntityParameters() = default;

void AxSurfaceEntityParameters::setDefaults()
{
    assignDefault(defaultDeadReckoningAlgorithm(), AxDeadReckonDrmRVW);
    assignDefault(myLeftSupport, AxVector64(20.0, -5.0, 0.0));
    assignDefault(myRightSupport, AxVector64(20.0, 5.0, 0.0));
    assignDefault(myOtherSupport, AxVector64(-20.0, 0.0, 0.0));
    assignDefault(myMaxSpeed, 15.0);
    assignDefault(myMaxReverseSpeed, 4.0);
    assignDefault(myTurningRadius, 250.0);
    assignDefault(myOrderedSpeed, 8.0);
    assignDefault(myMaxAcceleration, 0.3);
    assignDefault(myMaxDeceleration, 0.3);
    assignDefault(myMaxLateralAcceleration, 0.5);
}
