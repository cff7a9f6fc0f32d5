#pragma once

#include "AxDescriptorOf.h"

/// Judges from shots and detonations near by whether the object is under fire. Takes the values common to all
/// components only.
class ZEDOBJPARAM_API AxUnderFireDeterminationComponentDescriptor
    : public AxDescriptorOf<AxUnderFireDeterminationComponentDescriptor, AxComponentDescriptor,
                            "under-fire-determination-sensor-descriptor">
{
public:
    AxUnderFireDeterminationComponentDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxUnderFireDeterminationComponentDescriptor(AxUnderFireDeterminationComponentDescriptor const& other,
                                                AxReaderWriterRegistry* registry)
        : AxUnderFireDeterminationComponentDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxUnderFireDeterminationComponentDescriptor() override;
};
