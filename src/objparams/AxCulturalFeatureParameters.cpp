#include "AxCulturalFeatureParameters.h"

AxCulturalFeatureParameters::AxCulturalFeatureParameters(AxSymbolString name, AxReaderWriterRegistry* parent,
                                                         AxEnvironmentPtr const& env, AxEnvValuePtr const* node)
    : AxObjectRecordOf(name, parent, env, node)
{
    setOrganized(false);
}

AxCulturalFeatureParameters::~AxCulturalFeatureParameters() = default;
