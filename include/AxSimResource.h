#pragma once

#include "AxRecordOf.h"
#include "AxRwString.h"

/// A supply that an object consumes: fuel, water, rounds. Kept in an AxSimResourceManager, which knows it by its
/// resource name; in text it is headed by the type name of its class.
class ZEDOBJPARAM_API AxSimResource : public AxReaderWriter
{
public:
    AxSimResource(AxSymbolString name, AxReaderWriterRegistry* registry) : AxReaderWriter(name, registry) {}
    AxSimResource(AxSimResource const&) = delete;
    AxSimResource& operator=(AxSimResource const&) = delete;
    ~AxSimResource() override;

    /// A copy of the same class on the heap, entered in `registry` when that is given.
    virtual AxSimResource* clone(AxReaderWriterRegistry* registry) const = 0;
    virtual AxString const& resourceName() const { return myResourceName.value(); }
    virtual void setResourceName(AxString const& name) { assignSpecified(myResourceName, name); }

private:
    AxRwString myResourceName{{"resource-name", "", "What the object's components call the supply."}, registry()};
};
