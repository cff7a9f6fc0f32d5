#pragma once

#include "AxZedObjectParameterFactory.h"

/// A factory that knows the built-in kinds of object records.
class ZEDOBJPARAM_API AxDefaultParameterFactory : public AxZedObjectParameterFactory
{
public:
    AxDefaultParameterFactory();
    AxDefaultParameterFactory(AxDefaultParameterFactory const&) = default;
    ~AxDefaultParameterFactory() override;
    AxDefaultParameterFactory& operator=(AxDefaultParameterFactory const&) = default;

    static AxDefaultParameterFactory* create();
    /// Enters the built-in kinds into any factory.
    static void registerCreators(AxZedObjectParameterFactory* factory);
};
