#pragma once

#include <cstdint>

#include "AxExport.h"
#include "AxListItem.h"

/// Doubly linked list of pointers that it does not own. An item stays valid while others come and go.
class ZEDOBJPARAM_API AxList
{
public:
    AxList() = default;
    AxList(AxList const&) = delete;
    AxList& operator=(AxList const&) = delete;
    virtual ~AxList() { clear(); }

    AxListItem* first() const { return myFirst; }
    AxListItem* last() const { return myLast; }
    int count() const { return myCount; }
    bool isEmpty() const { return myCount == 0; }

    /// Grows by one with each item added or removed; lets whoever derives something from the list see that it is old.
    std::uint32_t changeCount() const { return myChangeCount; }

    AxListItem* add(void* data) { return insert(myLast, nullptr, data); }
    AxListItem* addToStart(void* data) { return insert(nullptr, myFirst, data); }

    /// `item` is of this list; null means the end for `insertBefore` and the start for `insertAfter`.
    AxListItem* insertBefore(AxListItem* item, void* data)
    {
        return insert(item != nullptr ? item->myPrevious : myLast, item, data);
    }
    AxListItem* insertAfter(AxListItem* item, void* data)
    {
        return insert(item, item != nullptr ? item->myNext : myFirst, data);
    }

    /// Takes an item of this list out and destroys it; its data stays. Null is ignored.
    void remove(AxListItem* item)
    {
        if (item == nullptr)
        {
            return;
        }
        unlink(item);
        delete item;
    }

    /// Moves an item of this list to the end of `other`. The item stays valid; nothing is allocated.
    void moveTo(AxList& other, AxListItem* item)
    {
        unlink(item);
        other.link(item, other.myLast, nullptr);
    }

    /// Destroys all items; their data stays.
    void removeAll()
    {
        myChangeCount += static_cast<std::uint32_t>(myCount);
        clear();
    }

private:
    AxListItem* insert(AxListItem* previous, AxListItem* next, void* data)
    {
        return link(new AxListItem(data), previous, next);
    }

    AxListItem* link(AxListItem* item, AxListItem* previous, AxListItem* next)
    {
        item->myPrevious = previous;
        item->myNext = next;
        (previous != nullptr ? previous->myNext : myFirst) = item;
        (next != nullptr ? next->myPrevious : myLast) = item;
        ++myCount;
        ++myChangeCount;
        return item;
    }

    void unlink(AxListItem* item)
    {
        (item->myPrevious != nullptr ? item->myPrevious->myNext : myFirst) = item->myNext;
        (item->myNext != nullptr ? item->myNext->myPrevious : myLast) = item->myPrevious;
        --myCount;
        ++myChangeCount;
    }

    void clear()
    {
        while (myFirst != nullptr)
        {
            AxListItem* next = myFirst->myNext;
            delete myFirst;
            myFirst = next;
        }
        myLast = nullptr;
        myCount = 0;
    }

    AxListItem* myFirst = nullptr;
    AxListItem* myLast = nullptr;
    int myCount = 0;
    std::uint32_t myChangeCount = 0;
};
