#pragma once

#include "AxSystemMetaDataEntry.h"

/// Makes meta-data entries by their type names.
class ZEDOBJPARAM_API AxDefaultSystemMetaDataEntryFactory : public AxSystemMetaDataEntry::Factory
{
public:
    /// Without any kind; `create` and `registerCreators` bring them in.
    AxDefaultSystemMetaDataEntryFactory() = default;
    ~AxDefaultSystemMetaDataEntryFactory() override;

    /// Enters every kind of the library in `factory`; null is ignored.
    static void registerCreators(AxSystemMetaDataEntry::Factory* factory);
    using AxStringKeyFactoryWithParam::create;
    /// A new factory that knows every kind; the caller owns it.
    static AxDefaultSystemMetaDataEntryFactory* create();
};
