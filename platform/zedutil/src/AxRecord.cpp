#include "AxRecord.h"

#include "AxPlainValue.h"
#include "AxRegistryShape.h"

#include <cstring>
#include <memory>
#include <new>

AxRecord::AxRecord(AxSymbolString name, AxReaderWriterRegistry* registry, bool specified)
    : AxReaderWriter(static_cast<Flag>(specified ? RestBehind | Specified : RestBehind)), myRest(this, name)
{
    static_assert(sizeof(AxRecord) == sizeof(AxReaderWriter) + sizeof(Rest), "the one stands right behind the other");
    try
    {
        enter(registry);
    }
    catch (...)
    {
        // What stands behind is gone before the part in front of it.
        leaveParent();
        setFlag(RestBehind, false);
        throw;
    }
}

AxRecord::AxRecord(AxKeyword const& keyword, AxReaderWriterRegistry* registry)
    : AxReaderWriter(keyword, registry), myRest(this, AxReaderWriter::name())
{
    if (hasRest()) // bound by pointer rather than as a data member
    {
        myRest.parent = restOrNull()->parent;
        dropRest();
    }
    setFlag(RestBehind, true);
}

/// The bytes of an object whose members are all known are copied at once; then what is its own is set right.
AxRecord* AxRecord::plainCopy(std::type_info const& type, std::size_t size, AxReaderWriterRegistry* registry) const
{
    AxReaderWriterRegistry const& mine = myRest.registry;
    AxRegistryTable const& table = mine.table();
    constexpr unsigned usual = RestBehind | Specified | Inherited;
    bool const isPlain = (myFlags & ~usual) == 0 && !myRest.rare && !mine.myOwn && typeid(*this) == type &&
                         table.plainSize(*this) == size && AxPlainValue::haveOnlyValues(table, *this);
    std::uint32_t const stamp = isPlain ? AxPlainValue::nextStamp() : 0;
    if (stamp == 0)
    {
        return nullptr;
    }
    void* const room = ::operator new(size);
    std::memcpy(room, static_cast<void const*>(this), size);
    auto* const made = static_cast<AxRecord*>(room);
    new (&made->myRest) Rest(made, myRest.name);
    made->myRest.registry.myShape = mine.myShape;
    made->myRest.registry.myLocalData = mine.myLocalData;
    made->myPlace = 0;
    AxPlainValue::settleCopies(table, *made, *this, stamp);
    made->stamp();
    std::unique_ptr<AxRecord> owner(made);
    made->enter(registry);
    return owner.release();
}

AxRecord::~AxRecord()
{
    leaveParent();
    setFlag(RestBehind, false);
}
