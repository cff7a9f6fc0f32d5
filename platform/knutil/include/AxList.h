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

    /// Puts in an item that is part of another object, in front of `before`; null means the end. Allocates nothing. It
    /// leaves the list by `unlink`, `unlinkAll` or `moveTo`, and must do so before the list is emptied or ends.
    void link(AxListItem& item, AxListItem* before)
    {
        join(&item, before != nullptr ? before->myPrevious : myLast, before);
    }
    /// Takes an item of this list out without destroying it.
    void unlink(AxListItem& item)
    {
        (item.myPrevious != nullptr ? item.myPrevious->myNext : myFirst) = item.myNext;
        (item.myNext != nullptr ? item.myNext->myPrevious : myLast) = item.myPrevious;
        --myCount;
        ++myChangeCount;
    }
    /// All items at once; their neighbours are no longer to be asked for.
    void unlinkAll()
    {
        myChangeCount += static_cast<std::uint32_t>(myCount);
        myFirst = myLast = nullptr;
        myCount = 0;
    }

    /// Takes an item of this list out and destroys it; its data stays. Null is ignored.
    void remove(AxListItem* item)
    {
        if (item == nullptr)
        {
            return;
        }
        unlink(*item);
        delete item;
    }

    /// Moves an item of this list to the end of `other`. The item stays valid; nothing is allocated.
    /// Null is ignored.
    void moveTo(AxList& other, AxListItem* item)
    {
        if (item != nullptr)
        {
            unlink(*item);
            other.join(item, other.myLast, nullptr);
        }
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
        return join(new AxListItem(data), previous, next);
    }

    AxListItem* join(AxListItem* item, AxListItem* previous, AxListItem* next)
    {
        item->myPrevious = previous;
        item->myNext = next;
        (previous != nullptr ? previous->myNext : myFirst) = item;
        (next != nullptr ? next->myPrevious : myLast) = item;
        ++myCount;
        ++myChangeCount;
        return item;
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
