#pragma once

#include "AxConnectionDescriptor.h"
#include "AxRwTemplatedListPtr.h"

#include <list>

/// The wires between the components of a system or an object, in order. Owns them; the same wire may stand in it more
/// than once. Endpoints are compared exactly.
class ZEDOBJPARAM_API AxConnectionDescriptorList : public AxRwTemplatedListPtr<AxConnectionDescriptor, 1>
{
public:
    using AxRwTemplatedListPtr::AxRwTemplatedListPtr;
    AxConnectionDescriptorList(AxConnectionDescriptorList const&) = default;
    ~AxConnectionDescriptorList() override;
    AxConnectionDescriptorList& operator=(AxConnectionDescriptorList const&) = default;

    // ---- The order of the virtual operations is part of the interface. ----
    /// Adds a connection and answers it; null when there is no memory for it.
    virtual AxConnectionDescriptor* addConnection(AxString const& source, AxString const& destination);
    /// The first of these endpoints, null when there is none.
    virtual AxConnectionDescriptor* findConnection(AxString const& source, AxString const& destination) const;
    /// Removes and deletes that very connection; false when it is not in the list.
    virtual bool removeConnection(AxConnectionDescriptor* connection);
    /// This and the next two remove and delete all that fit; false when none does.
    virtual bool removeConnection(AxString const& source, AxString const& destination);
    virtual bool removeAllConnectionsFrom(AxString const& source);
    virtual bool removeAllConnectionsTo(AxString const& destination);
    /// Removes and deletes each that is in this list.
    virtual void removeConnections(std::list<AxConnectionDescriptor*> const& connections);
    /// Whether a connection ends at "system:" and `name`.
    virtual bool hasSystemOutput(AxString const& name) const;
    /// Whether a connection starts at "system:" and `name`.
    virtual bool hasSystemInput(AxString const& name) const;
    /// Adds a copy and answers it; null when there is no memory for it.
    virtual AxConnectionDescriptor* addConnectionDescriptor(AxConnectionDescriptor const& connection);

protected:
    /// Takes ownership.
    virtual AxConnectionDescriptor* addConnectionDescriptor(AxConnectionDescriptor* connection);

public:
    /// Adds copies of the connections of `other`.
    virtual void copyList(AxConnectionDescriptorList const& other);
    /// Deletes all connections; the list counts as not specified then.
    virtual void emptyList();
    virtual AxConnectionDescriptorList* clone(AxReaderWriterRegistry* registry) const;
    // ---- End of the virtual operations. ----

    /// Deletes all connections; an explicitly empty list stays one.
    void removeAll() override;
    using AxRwTemplatedListPtr::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;
    char const* readerWriterType() const override;

private:
    template <class Condition>
    bool removeIf(Condition const& condition);
};
