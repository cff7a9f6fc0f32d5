#pragma once

#include "AxDescriptorOf.h"
#include "AxRwProperties.h"
#include "AxRwReal.h"
#include "AxRwString.h"

/// A controller that hands supplies from its object to others near it.
class ZEDOBJPARAM_API AxResupplyControllerDescriptor
    : public AxDescriptorOf<AxResupplyControllerDescriptor, AxComponentDescriptor, "resupply-controller-descriptor">
{
public:
    AxResupplyControllerDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxResupplyControllerDescriptor(AxResupplyControllerDescriptor const& other, AxReaderWriterRegistry* registry)
        : AxResupplyControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxResupplyControllerDescriptor() override;

    virtual AxString const& supplyingMode() const { return mySupplyingMode.value(); }
    virtual void setSupplyingMode(AxString const& mode) { assignSpecified(mySupplyingMode, mode); }
    virtual double range() const { return myRange; }
    virtual void setRange(double range) { assignSpecified(myRange, range); }
    virtual AxRwProperties const& suppliesOffered() const { return mySuppliesOffered; }
    virtual AxRwProperties& suppliesOffered() { return mySuppliesOffered; }

private:
    AxRwString mySupplyingMode{
        {"supplying-mode", "", "When supplies are handed out: \"on-request\" or \"automatic\"; empty: never."},
        registry()};
    AxRwReal myRange{{"range", "m", "Distance within which others are supplied.", axNotNegative}, 50.0, registry()};
    AxRwProperties mySuppliesOffered{{"supplies-offered", "", "Supplies that the object hands out."}, registry()};
};
