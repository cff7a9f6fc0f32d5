#pragma once

#include "AxRecordOf.h"
#include "AxRwInt.h"

/// Reads nothing but the version of a parameter database file; every other item is passed over in silence.
class ZEDOBJPARAM_API AxDummyParameterDb : public AxRecordOf<AxDummyParameterDb, "parameter-database">
{
public:
    using AxRecordOf::AxRecordOf;
    ~AxDummyParameterDb() override;

    /// 0 when the file has none.
    int version() const { return myVersion.value(); }
    bool versionSpecified() const { return myVersion.valueSpecified(); }

    bool unrecognizedItem(AxEnvironmentPtr const& env, AxEnvValuePtr const& node, AxFilenameList const& files,
                          AxBindingsList const& bindings) override;

private:
    AxRwInt myVersion{{"version", "", "Version of the file's form."}, registry()};
};
