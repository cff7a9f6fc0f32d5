#include "AxEnvList.h"

#include <algorithm>

#include "AxEnvObject.h"
#include "AxXmlDocument.h"

AxEnvList::~AxEnvList()
{
    letGo();
}

void AxEnvList::expandFromSource() const
{
    boost::shared_ptr<AxXmlDocument const> source;
    auto& object = const_cast<AxEnvObject&>(static_cast<AxEnvObject const&>(*this)); // no other kind has a source
    object.mySource.swap(source);
    try
    {
        AxXmlDocument::expand(object, source, mySourceNode);
    }
    catch (...)
    {
        object.letGo();
        while (!object.attributes().empty())
        {
            AxEnvValuePtr const last = object.attributes().back().value;
            object.removeAttribute(last);
        }
        object.mySource.swap(source); // all of it is made when it is looked for again
        throw;
    }
}

bool AxEnvList::add(AxEnvValuePtr const& child)
{
    return insert(count(), child);
}

bool AxEnvList::insert(std::size_t index, AxEnvValuePtr const& child)
{
    if (child == nullptr)
    {
        return false;
    }
    for (AxEnvValue const* above = this; above != nullptr; above = above->myParent)
    {
        if (above == child.get())
        {
            return false;
        }
    }
    expand();
    AxEnvValuePtr kept = child;
    if (kept->myParent != nullptr)
    {
        auto* former = static_cast<AxEnvList*>(kept->myParent);
        if (!former->remove(kept) && former->isObject())
        {
            static_cast<AxEnvObject*>(former)->removeAttribute(kept);
        }
    }
    auto place = static_cast<std::ptrdiff_t>(std::min(index, myChildren.size()));
    myChildren.insert(myChildren.begin() + place, kept);
    kept->myParent = this;
    return true;
}

bool AxEnvList::remove(AxEnvValuePtr const& child)
{
    expand();
    auto found = std::find(myChildren.begin(), myChildren.end(), child);
    if (found == myChildren.end())
    {
        return false;
    }
    // The list may hold the last reference, and `child` may be the list's own.
    AxEnvValuePtr kept = *found;
    myChildren.erase(found);
    kept->myParent = nullptr;
    return true;
}

void AxEnvList::removeAll()
{
    expand();
    letGo();
}

void AxEnvList::letGo()
{
    for (AxEnvValuePtr const& child : myChildren)
    {
        child->myParent = nullptr;
    }
    myChildren.clear();
}
