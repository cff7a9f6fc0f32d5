#pragma once

#include "AxReaderWriterFactory.h"
#include "AxTypedListIterator.h"
#include "axAddKeyed.h"

#include <typeinfo>
#include <unordered_set>

/// An owning list of records, each name once: what the descriptor lists have in common. `T` offers
/// `clone(AxReaderWriterRegistry*) const` and `operator==`.
///
/// A list class derives from it, declares its own virtual operations over the protected ones here, and reads one
/// element in its `getData`.
template <class T>
class AxDescriptorListTemplate : public AxRwList
{
public:
    AxDescriptorListTemplate() = default;
    AxDescriptorListTemplate(AxSymbolString name, AxReaderWriterRegistry* registry) : AxRwList(name, registry) {}
    AxDescriptorListTemplate(AxString const& name, AxReaderWriterRegistry* registry) : AxRwList(name, registry) {}
    AxDescriptorListTemplate(char const* name, AxReaderWriterRegistry* registry) : AxRwList(name, registry) {}
    AxDescriptorListTemplate(AxKeyword const& keyword, AxReaderWriterRegistry* registry) : AxRwList(keyword, registry)
    {
    }
    AxDescriptorListTemplate(AxSymbolString name, AxDescriptorListTemplate const& other,
                             AxReaderWriterRegistry* registry)
        : AxRwList(name, other, registry)
    {
        copyAll(other);
        carryState(other);
    }
    AxDescriptorListTemplate(AxDescriptorListTemplate const& other)
        : AxDescriptorListTemplate(other.AxReaderWriter::name(), other, nullptr)
    {
    }
    ~AxDescriptorListTemplate() override
    {
        static_cast<void>(&ourEntry);
        deleteAll();
    }

    AxDescriptorListTemplate& operator=(AxDescriptorListTemplate const& other)
    {
        if (this != &other)
        {
            deleteAll();
            copyAll(other);
            carryState(other);
        }
        return *this;
    }

    /// Pairwise in list order: names, classes and members.
    bool equals(AxDescriptorListTemplate const& other) const
    {
        if (count() != other.count())
        {
            return false;
        }
        auto right = other.begin();
        for (T const* left : *this)
        {
            if (!sameElement(*left, **right))
            {
                return false;
            }
            ++right;
        }
        return true;
    }
    bool operator==(AxDescriptorListTemplate const& other) const { return equals(other); }

    AxTypedListIterator<T> begin() const { return AxTypedListIterator<T>(first()); }
    AxTypedListIterator<T> end() const { return AxTypedListIterator<T>(nullptr); }

protected:
    /// The first element of that name, null when there is none.
    AxListItem* findItem(AxString const& name) const { return findItem(AxSymbolString::find(name.string()), name); }
    T* find(AxString const& name) const { return static_cast<T*>(element(findItem(name))); }
    /// Takes `element` over as the last; an element of its name before it is deleted. Marks the list specified. Null
    /// is ignored.
    void addOwned(T* element)
    {
        if (!element)
        {
            return;
        }
        axAddKeyed(*this, element, &axNameKey);
        setValueSpecified(true, false);
    }
    /// Null when no copy could be made.
    T* addCopy(T const& element)
    {
        auto* copy = static_cast<T*>(element.clone(nullptr));
        addOwned(copy);
        return copy;
    }
    void copyAll(AxDescriptorListTemplate const& other)
    {
        if (&other == this)
        {
            return;
        }
        if (isEmpty() && namesDiffer(other))
        {
            for (T const* element : other)
            {
                AxRwList::add(static_cast<T*>(element->clone(nullptr)));
            }
            return;
        }
        AxKeyedAdding const adding(*this);
        for (T const* element : other)
        {
            addCopy(*element);
        }
    }
    /// Deletes the elements and clears the flag.
    void makeEmpty()
    {
        deleteAll();
        setValueSpecified(false, false);
    }

private:
    /// An element may have been renamed, or added as to any list.
    static bool namesDiffer(AxDescriptorListTemplate const& list)
    {
        constexpr int shortList = 16;
        std::unordered_set<AxSymbolString> names;
        for (AxListItem const* item = list.first(); item; item = item->next())
        {
            AxSymbolString const name = element(item)->AxReaderWriter::name();
            if (list.count() > shortList ? !names.insert(name).second : list.findItem(name, name.string()) != item)
            {
                return false;
            }
        }
        return true;
    }
    AxListItem* findItem(AxSymbolString symbol, AxString const& name) const
    {
        if (symbol.isNull() && !name.isNull())
        {
            return nullptr; // no element can have a name that was never interned
        }
        AxListItem* item = first();
        while (item && !(element(item)->AxReaderWriter::name() == symbol))
        {
            item = item->next();
        }
        return item;
    }
    static bool sameElement(T const& a, T const& b)
    {
        if (!(a.AxReaderWriter::name() == b.AxReaderWriter::name()))
        {
            return false;
        }
        if constexpr (requires { a.type(); })
        {
            if (typeid(a) != typeid(b) && !(a.type() == b.type()))
            {
                return false;
            }
        }
        return a == b;
    }
    void deleteAll() { AxRwList::removeAndDeleteAll(); }

    inline static AxTypeEntry<AxDescriptorListTemplate> const ourEntry;
};
