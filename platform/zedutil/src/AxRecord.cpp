#include "AxRecord.h"

#include "AxRegistryShape.h"

AxRecord::AxRecord(AxSymbolString name, AxReaderWriterRegistry* registry, bool specified)
    : AxReaderWriter(name, nullptr, specified), myRest(this, name)
{
    useRest(myRest);
    enter(registry);
}

AxRecord::AxRecord(AxKeyword const& keyword, AxReaderWriterRegistry* registry)
    : AxReaderWriter(keyword, registry), myRest(this, AxReaderWriter::name())
{
    if (Rest* const made = restOrNull()) // bound by pointer rather than as a data member
    {
        myRest.parent = made->parent;
        delete made;
    }
    useRest(myRest);
}

AxRecord::~AxRecord()
{
    leaveParent();
    dropRest();
}
