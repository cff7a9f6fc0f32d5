#pragma once

#include "AxComponentDescriptorFactory.h"

/// A factory that knows the built-in descriptor catalogue.
class ZEDOBJPARAM_API AxDefaultComponentDescriptorFactory : public AxComponentDescriptorFactory
{
public:
    AxDefaultComponentDescriptorFactory();
    AxDefaultComponentDescriptorFactory(AxDefaultComponentDescriptorFactory const&) = default;
    ~AxDefaultComponentDescriptorFactory() override;
    AxDefaultComponentDescriptorFactory& operator=(AxDefaultComponentDescriptorFactory const&) = default;

    static AxDefaultComponentDescriptorFactory* create();
    /// Enters the built-in catalogue into any factory.
    static void registerCreators(AxComponentDescriptorFactory* factory);
};
