#include "AxRecord.h"

#include "AxRegistryShape.h"

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

AxRecord::~AxRecord()
{
    leaveParent();
    setFlag(RestBehind, false);
}
