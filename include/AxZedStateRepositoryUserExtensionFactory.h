#pragma once

#include "AxStringKeyFactoryWithParam.h"
#include "AxZedStateRepositoryUserExtension.h"

/// Makes user extensions by their type names; knows the base type from the start.
class ZEDOBJPARAM_API AxZedStateRepositoryUserExtensionFactory
    : public AxStringKeyFactoryWithParam<AxZedStateRepositoryUserExtension, AxString const&>
{
public:
    AxZedStateRepositoryUserExtensionFactory();
    ~AxZedStateRepositoryUserExtensionFactory() override;

    using AxStringKeyFactoryWithParam::create;
    /// A new extension that the caller owns; null when the type is unknown.
    AxZedStateRepositoryUserExtension* create(AxString const& type) const { return createItem(type, type); }
};
