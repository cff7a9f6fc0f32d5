#pragma once

#include "AxReaderWriter.h"

/// A reader/writer that holds members: its registry is part of the object, where others make theirs on demand.
class ZEDOBJPARAM_API AxRecord : public AxReaderWriter
{
public:
    AxRecord(AxSymbolString name, AxReaderWriterRegistry* registry, bool specified = false);
    AxRecord(AxKeyword const& keyword, AxReaderWriterRegistry* registry);
    AxRecord(AxRecord const&) = delete;
    ~AxRecord() override;

    AxRecord& operator=(AxRecord const& other)
    {
        assign(other);
        return *this;
    }

    AxReaderWriterRegistry* registry() { return &myRest.registry; }

private:
    Rest myRest;
};
