#include "AxSimMunitionList.h"

#include "AxIsForeign.h"
#include "AxReaderWriterFactory.h"
#include "AxStreams.h"
#include "axTryNew.h"

#include <memory>

static AxTypeEntry<AxSimMunitionList> const simMunitionListEntry;

AxSimMunitionList::~AxSimMunitionList() = default;

AxSimMunition* AxSimMunitionList::addSimMunition(AxSimMunition const& munition)
{
    return add(munition);
}

AxSimMunition* AxSimMunitionList::addSimMunition(AxSimMunition* munition)
{
    addToEnd(munition);
    return munition;
}

bool AxSimMunitionList::removeSimMunition(AxSimMunition* munition)
{
    AxListItem* const item = munition ? itemOf(munition) : nullptr;
    if (!item)
    {
        return false;
    }
    remove(munition, item);
    delete munition;
    return true;
}

AxSimMunition* AxSimMunitionList::lookupSimMunition(AxString const& name) const
{
    for (AxSimMunition* munition : *this)
    {
        if (munition->munitionName() == name)
        {
            return munition;
        }
    }
    return nullptr;
}

AxlObjPtr AxSimMunitionList::getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings)
{
    std::unique_ptr<AxSimMunition> munition(axTryNew<AxSimMunition>(elementWord(), nullptr));
    if (!munition)
    {
        AxWarn("AxSimMunition allocation failed\n");
        return item;
    }
    if (axIsForeign(item.get(), *munition))
    {
        keepElement(item.get());
        return item;
    }
    munition->getSelf(item, files, bindings);
    addSimMunition(munition.release());
    return item;
}

char const* AxSimMunitionList::readerWriterType() const
{
    return "AxSimMunitionList";
}

AxSymbolString AxSimMunitionList::elementWord()
{
    static AxSymbolString const word("munition");
    return word;
}
