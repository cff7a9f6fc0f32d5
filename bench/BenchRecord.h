#pragma once

#include "AxObjectRecordOf.h"
#include "AxRecordOf.h"
#include "BenchFields.h"

/// The record of the benchmarks as a record of its own.
class BenchRecord : public BenchFields<AxRecordOf<BenchRecord, "bench-record">>
{
public:
    using BenchFields::BenchFields;

    BenchRecord& operator=(BenchRecord const& other)
    {
        assign(other);
        return *this;
    }
};

/// The same members on top of those of every object record, for databases.
class BenchParameters : public BenchFields<AxObjectRecordOf<BenchParameters, AxZedObjectParameters, "bench-parameters">>
{
public:
    using BenchFields::BenchFields;
};

/// Registers descriptor and record class with factories of the process.
void setUpFactories();
