#pragma once

#include <memory>
#include <vector>

#include "AxBaseHashKey.h"
#include "AxExport.h"
#include "AxList.h"
#include "AxStringHashKey.h"

/// Table of pointers by key that also keeps them in the order in which they were added. Never owns the data.
class ZEDOBJPARAM_API AxHashlist
{
public:
    static constexpr int theDefaultNumBuckets = 64;

    /// The number of buckets is a first guess; the table grows with what it holds.
    explicit AxHashlist(int numBuckets = theDefaultNumBuckets);
    AxHashlist(AxHashlist const&) = delete;
    AxHashlist& operator=(AxHashlist const&) = delete;
    virtual ~AxHashlist();

    /// Adds at the end of the order. Under a key that is present the data is replaced in place, and the old pointer
    /// is handed out through `replaced`; otherwise `replaced` gets null. Answers the item.
    virtual AxListItem* add(AxBaseHashKey const& key, void* data, void** replaced = nullptr);

    /// The data under the key, null when there is none.
    virtual void* lookup(AxBaseHashKey const& key) const;

    /// Takes the key out and answers its data, null when there was none.
    virtual void* remove(AxBaseHashKey const& key);

    /// Takes all keys out; their data stays.
    void clear();

    /// The items in order; each item's data is what was added.
    AxListItem* first() const { return myItems.first(); }
    int count() const { return myItems.count(); }

private:
    struct Node;
    using Link = std::unique_ptr<Node>;

    Link const* find(AxBaseHashKey const& key) const;
    void grow();

    std::vector<Link> myBuckets;
    AxList myItems;
};
