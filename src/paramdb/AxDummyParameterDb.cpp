#include "AxDummyParameterDb.h"

AxDummyParameterDb::~AxDummyParameterDb() = default;

bool AxDummyParameterDb::unrecognizedItem(AxEnvironmentPtr const&, AxEnvValuePtr const&, AxFilenameList const&,
                                          AxBindingsList const&)
{
    return true;
}
