#include "AxMovingObjectParameters.h"

AxMovingObjectParameters::AxMovingObjectParameters(AxSymbolString name, AxReaderWriterRegistry* parent,
                                                   AxEnvironmentPtr const& env, AxEnvValuePtr const* node)
    : AxObjectRecordOf(name, parent, env, node)
{
    registry()->setLocalData();
    setOrganized(true);
}

AxMovingObjectParameters::~AxMovingObjectParameters() = default;
