#include "AxZedReaderWriterFactory.h"

#include "AxAggregatedMovementDescriptor.h"
#include "AxDmgMunitionTable.h"
#include "AxEmbarkationSlotEntry.h"
#include "AxFormationTable.h"
#include "AxIntegerResource.h"
#include "AxLoadPoint.h"
#include "AxMunitionResource.h"
#include "AxRealResource.h"
#include "AxRwTemplatedListPtr.h"
#include "AxSimResourceManager.h"
#include "AxSlotExclusion.h"
#include "AxTargetPriorityEntry.h"
#include "AxTargetPriorityList.h"
#include "AxTargetSelectionCriteria.h"
#include "AxZedSubObjectParameterEntry.h"
#include "AxZedSubObjectParameterList.h"

namespace
{
/// Records of any registered type, owned.
class ReaderWriters : public AxRwList
{
public:
    using AxRwList::AxRwList;
    ~ReaderWriters() override { AxRwList::removeAndDeleteAll(); }
};

template <class T>
using ListOf = AxRwTemplatedListPtr<T, 1>;

template <class T>
AxTypeOps opsOf()
{
    if constexpr (requires(T const& a, T const& b) { a.equals(b); })
    {
        return AxTypeOps::withCreator<T>();
    }
    else
    {
        AxTypeOps ops;
        ops.create = [](AxSymbolString name, AxReaderWriterRegistry* registry) -> AxReaderWriter*
        { return new T(name, registry); };
        return ops;
    }
}

template <class T>
AxString xmlTypeOf()
{
    return T(AxSymbolString(), nullptr).xmlType();
}

/// Type name of a list of `T`.
template <class T>
AxString const& pluralOf()
{
    static AxString const plural = xmlTypeOf<T>() + "s";
    return plural;
}

// The library works with this factory from the moment it is loaded.
[[maybe_unused]] bool const makerIsSet =
    (AxReaderWriterFactory::setDefaultMaker(&AxZedReaderWriterFactory::create), true);
} // namespace

AxZedReaderWriterFactory::AxZedReaderWriterFactory() : AxReaderWriterFactory(true)
{
    addDefaultRwCreators();
}

AxReaderWriterFactory* AxZedReaderWriterFactory::create()
{
    return new AxZedReaderWriterFactory;
}

void AxZedReaderWriterFactory::addDefaultRwCreators()
{
    AxString const record = xmlTypeOf<AxReaderWriter>();
    AxString const list = xmlTypeOf<AxRwList>();
    AxString const none;
    auto const row = [this](AxString const& type, AxTypeOps const& ops, AxString const& xmlType)
    {
        addType(type, ops);
        if (!xmlType.isNull())
        {
            mapRwToXml(type, xmlType);
        }
    };
    row("AxTargetPriorityList", opsOf<AxTargetPriorityList>(), list);
    row("AxTargetPriorityEntry", opsOf<AxTargetPriorityEntry>(), record);
    row("AxRwResourceManagerType", opsOf<AxSimResourceManager>(), list);
    row("integer-resource", opsOf<AxIntegerResource>(), record);
    row("real-resource", opsOf<AxRealResource>(), record);
    row("munition-resource", opsOf<AxMunitionResource>(), record);
    row("AxLoadPoint", opsOf<AxLoadPoint>(), xmlTypeOf<AxLoadPoint>());
    row(pluralOf<AxLoadPoint>(), opsOf<ListOf<AxLoadPoint>>(), none);
    row(pluralOf<AxEmbarkationSlotEntry>(), opsOf<ListOf<AxEmbarkationSlotEntry>>(), none);
    row("AxDmgMunitionTable", opsOf<AxDmgMunitionTable>(), list);
    row("AxEmbarkationSlotEntry", opsOf<AxEmbarkationSlotEntry>(), xmlTypeOf<AxEmbarkationSlotEntry>());
    row("AxZedSubObjectParameterEntry", opsOf<AxZedSubObjectParameterEntry>(),
        xmlTypeOf<AxZedSubObjectParameterEntry>());
    row("AxZedSubObjectParameterList", opsOf<AxZedSubObjectParameterList>(), xmlTypeOf<AxZedSubObjectParameterList>());
    row("AxFormationTableEntry", opsOf<AxFormationTableEntry>(), xmlTypeOf<AxFormationTableEntry>());
    row("AxFormationTable", opsOf<AxFormationTable>(), xmlTypeOf<AxFormationTable>());
    row(pluralOf<AxSlotExclusion>(), opsOf<ListOf<AxSlotExclusion>>(), none);
    row("AxSlotExclusion", opsOf<AxSlotExclusion>(), xmlTypeOf<AxSlotExclusion>());
    row("target-selection-criteria", opsOf<AxTargetSelectionCriteria>(), record);
    row(pluralOf<AxReaderWriter>(), opsOf<ReaderWriters>(), none);
    using Mobility = AxAggregatedMovementDescriptor::MobilityEntry;
    row(pluralOf<Mobility>(), opsOf<ListOf<Mobility>>(), none);
    row(Mobility().readerWriterType(), opsOf<Mobility>(), xmlTypeOf<Mobility>());
}
