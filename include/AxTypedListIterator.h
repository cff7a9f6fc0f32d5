#pragma once

#include "AxRwList.h"

/// Walks the elements of a list as the `T` that they are. Valid until its element is removed.
template <class T>
class AxTypedListIterator
{
public:
    explicit AxTypedListIterator(AxListItem const* item) : myItem(item) {}
    T* operator*() const { return static_cast<T*>(AxRwList::element(myItem)); }
    AxTypedListIterator& operator++()
    {
        myItem = myItem->next();
        return *this;
    }
    bool operator==(AxTypedListIterator const&) const = default;

private:
    AxListItem const* myItem;
};
