#include "AxRecursiveReaderWriterIterator.h"

#include "AxReaderWriterFile.h"
#include "AxRwList.h"

AxRecursiveReaderWriterIterator::AxRecursiveReaderWriterIterator(AxReaderWriterRegistry const& registry)
    : myRegistry(registry)
{
}

AxReaderWriter* AxRecursiveReaderWriterIterator::first()
{
    myPending.clear();
    push(myRegistry);
    return next();
}

AxReaderWriter* AxRecursiveReaderWriterIterator::next()
{
    if (myPending.empty())
    {
        myCurrent = nullptr;
        return nullptr;
    }
    myCurrent = myPending.back();
    myPending.pop_back();
    pushBelow(*myCurrent);
    return myCurrent;
}

AxReaderWriter* AxRecursiveReaderWriterIterator::current() const
{
    return myCurrent;
}

void AxRecursiveReaderWriterIterator::push(AxReaderWriterRegistry const& registry)
{
    for (std::size_t i = registry.size(); i-- > 0;)
    {
        AxRegistryEntry const entry = registry.entry(i);
        if (!entry.content)
        {
            myPending.push_back(entry.member);
        }
    }
}

void AxRecursiveReaderWriterIterator::pushBelow(AxReaderWriter& rw)
{
    if (auto const* const list = dynamic_cast<AxRwList const*>(&rw))
    {
        for (AxListItem const* item = list->last(); item; item = item->previous())
        {
            myPending.push_back(AxRwList::element(item));
        }
    }
    else if (auto const* const file = dynamic_cast<AxReaderWriterFile const*>(&rw))
    {
        if (file->content() && file->contentKind() != AxReaderWriterFile::ContentKind::Member)
        {
            myPending.push_back(file->content());
        }
    }
    if (AxReaderWriterRegistry const* const members = rw.registryIfAny())
    {
        push(*members);
    }
}
