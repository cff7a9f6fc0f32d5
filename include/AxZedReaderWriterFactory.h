#pragma once

#include "AxReaderWriterFactory.h"

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor" // as its base

/// The framework's reader/writer factory plus the types of this library that stand as members or free items in
/// parameter files: resources, target priorities, slots, sub-objects, formations and lists of them. The library works
/// with one of these until the host sets another.
class ZEDOBJPARAM_API AxZedReaderWriterFactory : public AxReaderWriterFactory
{
public:
    AxZedReaderWriterFactory();

    static AxReaderWriterFactory* create();
    /// Registers the library's types.
    void addDefaultRwCreators();
};

#pragma GCC diagnostic pop
