#pragma once

#include "AxDescriptorOf.h"

/// Notices lasers that illuminate the object. Takes the values common to all components only.
class ZEDOBJPARAM_API AxLaserDetectorDescriptor
    : public AxDescriptorOf<AxLaserDetectorDescriptor, AxComponentDescriptor, "laser-detector-descriptor">
{
public:
    AxLaserDetectorDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxLaserDetectorDescriptor(AxLaserDetectorDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxLaserDetectorDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxLaserDetectorDescriptor() override;
};
