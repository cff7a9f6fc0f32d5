#include "AxConnectionDescriptorList.h"

#include "AxFaultAt.h"
#include "AxIsForeign.h"
#include "AxReaderWriterFactory.h"
#include "AxStreams.h"
#include "AxlObj.h"
#include "axTryNew.h"

#include <memory>
#include <unordered_set>

static AxTypeEntry<AxConnectionDescriptorList> const connectionDescriptorListEntry;

/// Whether `endpoint` is that of the enclosing system's boundary called `name`.
static bool isOnBoundary(AxString const& endpoint, AxString const& name)
{
    constexpr std::string_view prefix = "system:";
    std::string_view const text = endpoint.string();
    return text.starts_with(prefix) && text.substr(prefix.size()) == name.string();
}

AxConnectionDescriptorList::~AxConnectionDescriptorList() = default;

AxConnectionDescriptor* AxConnectionDescriptorList::addConnection(AxString const& source, AxString const& destination)
{
    return addConnectionDescriptor(
        AxConnectionDescriptor(AxConnectionDescriptor::elementWord(), source, destination, nullptr));
}

AxConnectionDescriptor* AxConnectionDescriptorList::findConnection(AxString const& source,
                                                                   AxString const& destination) const
{
    for (AxConnectionDescriptor* connection : *this)
    {
        if (connection->source() == source && connection->destination() == destination)
        {
            return connection;
        }
    }
    return nullptr;
}

/// `condition` owns the texts it compares with: those it was made from may be of an element that is deleted here.
template <class Condition>
bool AxConnectionDescriptorList::removeIf(Condition const& condition)
{
    bool isAnyRemoved = false;
    AxListItem* item = first();
    while (item)
    {
        AxListItem* const next = item->next();
        auto* const connection = static_cast<AxConnectionDescriptor*>(element(item));
        if (condition(*connection))
        {
            AxRwList::remove(connection, item);
            delete connection;
            isAnyRemoved = true;
        }
        item = next;
    }
    return isAnyRemoved;
}

bool AxConnectionDescriptorList::removeConnection(AxConnectionDescriptor* connection)
{
    return removeIf([connection](AxConnectionDescriptor const& candidate) { return &candidate == connection; });
}

bool AxConnectionDescriptorList::removeConnection(AxString const& source, AxString const& destination)
{
    return removeIf([source, destination](AxConnectionDescriptor const& candidate)
                    { return candidate.source() == source && candidate.destination() == destination; });
}

bool AxConnectionDescriptorList::removeAllConnectionsFrom(AxString const& source)
{
    return removeIf([source](AxConnectionDescriptor const& candidate) { return candidate.source() == source; });
}

bool AxConnectionDescriptorList::removeAllConnectionsTo(AxString const& destination)
{
    return removeIf([destination](AxConnectionDescriptor const& candidate)
                    { return candidate.destination() == destination; });
}

void AxConnectionDescriptorList::removeConnections(std::list<AxConnectionDescriptor*> const& connections)
{
    std::unordered_set<AxConnectionDescriptor const*> const removed(connections.begin(), connections.end());
    removeIf([&removed](AxConnectionDescriptor const& candidate) { return removed.contains(&candidate); });
}

bool AxConnectionDescriptorList::hasSystemOutput(AxString const& name) const
{
    for (AxConnectionDescriptor const* connection : *this)
    {
        if (isOnBoundary(connection->destination(), name))
        {
            return true;
        }
    }
    return false;
}

bool AxConnectionDescriptorList::hasSystemInput(AxString const& name) const
{
    for (AxConnectionDescriptor const* connection : *this)
    {
        if (isOnBoundary(connection->source(), name))
        {
            return true;
        }
    }
    return false;
}

AxConnectionDescriptor* AxConnectionDescriptorList::addConnectionDescriptor(AxConnectionDescriptor const& connection)
{
    return addConnectionDescriptor(connection.clone(nullptr));
}

AxConnectionDescriptor* AxConnectionDescriptorList::addConnectionDescriptor(AxConnectionDescriptor* connection)
{
    addToEnd(connection);
    return connection;
}

void AxConnectionDescriptorList::copyList(AxConnectionDescriptorList const& other)
{
    if (&other == this)
    {
        return;
    }
    for (AxConnectionDescriptor const* connection : other)
    {
        addConnectionDescriptor(*connection);
    }
}

void AxConnectionDescriptorList::emptyList()
{
    AxRwList::removeAndDeleteAll();
    setValueSpecified(false, false);
}

AxConnectionDescriptorList* AxConnectionDescriptorList::clone(AxReaderWriterRegistry* registry) const
{
    return axTryNew<AxConnectionDescriptorList>(AxReaderWriter::name(), *this, registry);
}

void AxConnectionDescriptorList::removeAll()
{
    AxRwList::removeAndDeleteAll();
}

AxlObjPtr AxConnectionDescriptorList::getData(AxlObjPtr const& item, AxFilenameList const& files,
                                              AxBindingsList const& bindings)
{
    if (item->cdr()->car()->isPair() || item->cdr()->cdr()->car()->isPair())
    {
        AxDiagnostics::report(axFaultAt(AxSeverity::Warning, "missing-endpoint", item.get(),
                                        "a connection expects a source and a destination"));
        keepElement(item.get());
        return item;
    }
    axReportMisspelt(item.get(), AxConnectionDescriptor::elementWord());
    std::unique_ptr<AxConnectionDescriptor> connection(axTryNew<AxConnectionDescriptor>(AxSymbolString(), nullptr));
    if (!connection)
    {
        AxWarn("AxConnectionDescriptor allocation failed\n");
        return item;
    }
    connection->getSelf(item, files, bindings);
    addConnectionDescriptor(connection.release());
    return item;
}

char const* AxConnectionDescriptorList::readerWriterType() const
{
    return "AxConnectionDescriptorList";
}
