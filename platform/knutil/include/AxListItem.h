#pragma once

#include "AxExport.h"

/// A place in an AxList. Made by the list, and lives until it is removed or the list ends; or a part of the object that
/// it stands for, which links and unlinks it.
class ZEDOBJPARAM_API AxListItem
{
public:
    explicit AxListItem(void* data) : myData(data) {}
    AxListItem(AxListItem const&) = delete;
    AxListItem& operator=(AxListItem const&) = delete;

    /// Neighbours in the list, null at its ends.
    AxListItem* next() const { return myNext; }
    AxListItem* previous() const { return myPrevious; }

    /// What the item stands for; never owned by the list.
    void* data() const { return myData; }
    void setData(void* data) { myData = data; }

private:
    friend class AxList;

    AxListItem* myPrevious = nullptr;
    AxListItem* myNext = nullptr;
    void* myData;
};
