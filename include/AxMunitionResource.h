#pragma once

#include "AxIntegerResource.h"
#include "AxSimMunition.h"

/// Rounds of one kind of ammunition.
class ZEDOBJPARAM_API AxMunitionResource : public AxRecordOf<AxMunitionResource, "munition-resource", AxIntegerResource>
{
public:
    using AxRecordOf::AxRecordOf;
    AxMunitionResource(AxMunitionResource const& other, AxReaderWriterRegistry* registry = nullptr);
    AxMunitionResource& operator=(AxMunitionResource const& other);
    ~AxMunitionResource() override;

    AxSimResource* clone(AxReaderWriterRegistry* registry) const override { return copy(registry); }

    virtual AxSimMunition& munition() { return myMunition; }
    virtual AxSimMunition const& munition() const { return myMunition; }

private:
    AxSimMunition myMunition{{"munition", "", "What the rounds are."}, registry()};
};
