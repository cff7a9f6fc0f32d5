#pragma once

#include "AxRemoteConfiguration.h"
#include "AxRwTemplatedListPtr.h"

/// The remote configurations of a database, `(remote-configurations (remote-configuration ...)...)`.
class ZEDOBJPARAM_API AxRemoteConfigurationList : public AxRwTemplatedListPtr<AxRemoteConfiguration, 1>
{
public:
    using AxRwTemplatedListPtr::AxRwTemplatedListPtr;
    AxRemoteConfigurationList(AxRemoteConfigurationList const&) = default;
    ~AxRemoteConfigurationList() override;
    AxRemoteConfigurationList& operator=(AxRemoteConfigurationList const&) = default;

    /// Appends copies of the other's configurations.
    AxRemoteConfigurationList& operator+=(AxRemoteConfigurationList const& other);

    /// A new empty list, the caller's; null when there is no memory for it.
    static AxRemoteConfigurationList* create(AxString const& name, AxReaderWriterRegistry* registry);

    char const* readerWriterType() const override;
};
