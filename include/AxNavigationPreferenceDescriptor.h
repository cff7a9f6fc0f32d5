#pragma once

#include "AxDescriptorOf.h"
#include "AxRwString.h"

/// Holds how much an object's paths keep to roads.
class ZEDOBJPARAM_API AxNavigationPreferenceDescriptor
    : public AxDescriptorOf<AxNavigationPreferenceDescriptor, AxComponentDescriptor, "navigation-preference-descriptor">
{
public:
    AxNavigationPreferenceDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxNavigationPreferenceDescriptor(AxNavigationPreferenceDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxNavigationPreferenceDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxNavigationPreferenceDescriptor() override;

    virtual AxString const& initialRoadPreference() const { return myInitialRoadPreference.value(); }
    virtual void setInitialRoadPreference(AxString const& preference)
    {
        assignSpecified(myInitialRoadPreference, preference);
    }

private:
    AxRwString myInitialRoadPreference{
        {"initial-road-preference", "", "\"prefer\", \"avoid\" or \"only\" roads at the start; empty: none."},
        registry()};
};
