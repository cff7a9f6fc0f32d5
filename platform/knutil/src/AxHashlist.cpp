#include "AxHashlist.h"

#include <algorithm>
#include <utility>

struct AxHashlist::Node
{
    std::unique_ptr<AxBaseHashKey> key;
    std::size_t hash;
    AxListItem* item;
    Link next;
};

AxHashlist::AxHashlist(int numBuckets) : myBuckets(static_cast<std::size_t>(std::max(numBuckets, 1))) {}

AxHashlist::~AxHashlist() = default;

AxListItem* AxHashlist::add(AxBaseHashKey const& key, void* data, void** replaced)
{
    Link const& present = *find(key);
    if (replaced != nullptr)
    {
        *replaced = present != nullptr ? present->item->data() : nullptr;
    }
    if (present != nullptr)
    {
        present->item->setData(data);
        return present->item;
    }
    if (static_cast<std::size_t>(count()) >= myBuckets.size())
    {
        grow();
    }
    auto node = std::make_unique<Node>();
    node->key.reset(key.clone());
    node->hash = key.hash();
    node->item = myItems.add(data);
    Link& bucket = myBuckets[node->hash % myBuckets.size()];
    AxListItem* const item = node->item;
    node->next = std::move(bucket);
    bucket = std::move(node);
    return item;
}

void* AxHashlist::lookup(AxBaseHashKey const& key) const
{
    Link const& node = *find(key);
    return node != nullptr ? node->item->data() : nullptr;
}

void* AxHashlist::remove(AxBaseHashKey const& key)
{
    Link& node = const_cast<Link&>(*find(key));
    if (node == nullptr)
    {
        return nullptr;
    }
    void* const data = node->item->data();
    myItems.remove(node->item);
    node = std::exchange(node->next, nullptr);
    return data;
}

void AxHashlist::clear()
{
    for (Link& bucket : myBuckets)
    {
        while (bucket != nullptr)
        {
            bucket = std::exchange(bucket->next, nullptr);
        }
    }
    myItems.removeAll();
}

/// The link to the node of the key; an empty link when there is none.
AxHashlist::Link const* AxHashlist::find(AxBaseHashKey const& key) const
{
    std::size_t const hash = key.hash();
    Link const* link = &myBuckets[hash % myBuckets.size()];
    while (*link != nullptr && ((*link)->hash != hash || !(*link)->key->equals(key)))
    {
        link = &(*link)->next;
    }
    return link;
}

void AxHashlist::grow()
{
    std::vector<Link> larger(2 * myBuckets.size());
    for (Link& bucket : myBuckets)
    {
        while (bucket != nullptr)
        {
            Link node = std::exchange(bucket, std::move(bucket->next));
            Link& target = larger[node->hash % larger.size()];
            node->next = std::move(target);
            target = std::move(node);
        }
    }
    myBuckets.swap(larger);
}
