#include "AxRemoteConfiguration.h"

#include "AxReaderWriterFactory.h"

static AxTypeEntry<AxRemoteConfiguration> const remoteConfigurationEntry;

AxRemoteConfiguration::AxRemoteConfiguration() : AxRecordOf(elementWord(), nullptr) {}

AxRemoteConfiguration::AxRemoteConfiguration(AxRemoteConfiguration const& other, AxReaderWriterRegistry* registry)
    : AxRecordOf(other.AxReaderWriter::name(), registry)
{
    *this = other;
}

AxRemoteConfiguration::~AxRemoteConfiguration() = default;

AxRemoteConfiguration& AxRemoteConfiguration::operator=(AxRemoteConfiguration const& other)
{
    assign(other);
    myVariableBindings = other.myVariableBindings;
    return *this;
}

AxSymbolString AxRemoteConfiguration::elementWord()
{
    static AxSymbolString const word("remote-configuration");
    return word;
}
