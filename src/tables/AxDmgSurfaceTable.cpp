#include "AxDmgSurfaceTable.h"

#include "AxFaultAt.h"
#include "axTryNew.h"

#include <algorithm>
#include <memory>

AxDmgSurfaceTable::AxDmgSurfaceTable(AxDmgSurfaceTable const& other) : AxRwTemplatedListPtr(other) {}

AxDmgSurfaceTable::~AxDmgSurfaceTable() = default;

AxDmgSurfaceTable& AxDmgSurfaceTable::operator=(AxDmgSurfaceTable const& other)
{
    AxRwTemplatedListPtr::operator=(other);
    return *this;
}

bool AxDmgSurfaceTable::getProbabilities(AxString const& surface, double angle, double range,
                                         AxPrbRangeTableEntry* out) const
{
    AxDmgSurfaceEntry const* const entry = lookupSurfaceEntry(surface);
    return entry && entry->getProbabilities(angle, range, out);
}

double AxDmgSurfaceTable::getMaximumDamageRadius() const
{
    double radius = 0.0;
    for (AxDmgSurfaceEntry const* entry : *this)
    {
        radius = std::max(radius, entry->getMaximumDamageRadius());
    }
    return radius;
}

AxDmgSurfaceEntry* AxDmgSurfaceTable::lookupSurfaceEntry(AxString const& surface) const
{
    Index const& entries = index();
    auto const found = entries.find(surface.string());
    return found == entries.end() ? nullptr : found->second;
}

AxDmgSurfaceTable::Index& AxDmgSurfaceTable::index() const
{
    if (myIndexedChanges != changeCount())
    {
        myIndex.clear();
        for (AxDmgSurfaceEntry* entry : *this)
        {
            myIndex.insert_or_assign(entry->AxReaderWriter::name().view(), entry);
        }
        myIndexedChanges = changeCount();
    }
    return myIndex;
}

AxDmgSurfaceEntry* AxDmgSurfaceTable::addSurfaceEntry(AxDmgSurfaceEntry const& entry)
{
    return addSurfaceEntry(axTryNew<AxDmgSurfaceEntry>(entry));
}

AxDmgSurfaceEntry* AxDmgSurfaceTable::addSurfaceEntry(AxDmgSurfaceEntry* entry)
{
    if (entry)
    {
        Index& entries = index();
        addToEnd(entry);
        entries.insert_or_assign(entry->AxReaderWriter::name().view(), entry);
        myIndexedChanges = changeCount();
    }
    return entry;
}

bool AxDmgSurfaceTable::removeSurfaceEntry(AxDmgSurfaceEntry* entry)
{
    AxListItem* const item = entry ? itemOf(entry) : nullptr;
    if (!item)
    {
        return false;
    }
    remove(entry, item);
    delete entry;
    return true;
}

AxlObjPtr AxDmgSurfaceTable::getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings)
{
    if (keepNameless(item.get()))
    {
        return item;
    }
    AxSymbolString const surface = headName(item);
    if (lookupSurfaceEntry(surface))
    {
        AxDiagnostics::report(axFaultAt(AxSeverity::Warning, "repeated-surface", item->car(),
                                        "the surface \"" + surface.string().string() +
                                            "\" has an entry already; this one answers instead"));
    }
    auto entry = std::make_unique<AxDmgSurfaceEntry>(surface, nullptr);
    entry->getSelf(item, files, bindings);
    addSurfaceEntry(entry.release());
    return item;
}

char const* AxDmgSurfaceTable::readerWriterType() const
{
    return "AxDmgSurfaceTable";
}

char const* AxDmgSurfaceTable::xmlType() const
{
    return AxRwList::xmlType();
}
