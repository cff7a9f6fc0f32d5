#pragma once

#include "AxSystemParameterData.h"

/// Knows every kind of parameter data of the library.
class ZEDOBJPARAM_API AxDefaultSystemParameterDataFactory : public AxSystemParameterData::Factory
{
public:
    AxDefaultSystemParameterDataFactory();
    ~AxDefaultSystemParameterDataFactory() override;
};
