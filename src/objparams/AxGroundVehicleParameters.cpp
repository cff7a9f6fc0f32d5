#include "AxGroundVehicleParameters.h"

AxGroundVehicleParameters::AxGroundVehicleParameters(AxSymbolString name, AxReaderWriterRegistry* parent,
                                                     AxEnvironmentPtr const& env, AxEnvValuePtr const* node)
    : AxObjectRecordOf(name, parent, env, node)
{
    myOtherSupport.addAlias("rear-support");
    setDeadReckoningAlgorithm(AxDeadReckonDrmRVW);
}

AxGroundVehicleParameters::~AxGroundVehicleParameters() = default;
