#include "AxRemoteConfigurationList.h"

#include <new>
#include <vector>

AxRemoteConfigurationList::~AxRemoteConfigurationList() = default;

AxRemoteConfigurationList& AxRemoteConfigurationList::operator+=(AxRemoteConfigurationList const& other)
{
    std::vector<AxRemoteConfiguration const*> added; // a list may be appended to itself
    for (AxRemoteConfiguration const* configuration : other)
    {
        added.push_back(configuration);
    }
    for (AxRemoteConfiguration const* configuration : added)
    {
        add(*configuration);
    }
    return *this;
}

AxRemoteConfigurationList* AxRemoteConfigurationList::create(AxString const& name, AxReaderWriterRegistry* registry)
{
    try
    {
        return new AxRemoteConfigurationList(name, registry);
    }
    catch (std::bad_alloc const&)
    {
        return nullptr;
    }
}

char const* AxRemoteConfigurationList::readerWriterType() const
{
    return "AxRemoteConfigurationList";
}
