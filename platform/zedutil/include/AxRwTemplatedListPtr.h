#pragma once

#include "AxReaderWriterFactory.h"
#include "AxRwList.h"
#include "AxTextReader.h"

#include <memory>

/// A list of `T`. With `owns` 1 it deletes its elements and copies them deeply; with 0 it borrows them.
///
/// An element is read as a new `T` named by its head. Needs `T(AxSymbolString, AxReaderWriterRegistry*)` and
/// assignment.
template <class T, int owns>
class AxRwTemplatedListPtr : public AxRwList
{
public:
    AxRwTemplatedListPtr() = default;
    using AxRwList::AxRwList;
    AxRwTemplatedListPtr(AxSymbolString name, AxRwTemplatedListPtr const& other, AxReaderWriterRegistry* registry)
        : AxRwList(name, other, registry)
    {
        copyFrom(other);
    }
    AxRwTemplatedListPtr(AxRwTemplatedListPtr const& other, AxReaderWriterRegistry* registry)
        : AxRwTemplatedListPtr(other.AxReaderWriter::name(), other, registry)
    {
    }
    AxRwTemplatedListPtr(AxRwTemplatedListPtr const& other) : AxRwList(other) { copyFrom(other); }
    ~AxRwTemplatedListPtr() override
    {
        static_cast<void>(&ourEntry);
        clear();
    }

    AxRwTemplatedListPtr& operator=(AxRwTemplatedListPtr const& other)
    {
        if (this != &other)
        {
            clear();
            copyFrom(other);
            assign(other);
        }
        return *this;
    }
    bool operator==(AxRwTemplatedListPtr const& other) const { return equals(other); }

    class Iterator
    {
    public:
        explicit Iterator(AxListItem const* item) : myItem(item) {}
        T* operator*() const { return static_cast<T*>(AxRwList::element(myItem)); }
        Iterator& operator++()
        {
            myItem = myItem->next();
            return *this;
        }
        bool operator!=(Iterator const& other) const { return myItem != other.myItem; }

    private:
        AxListItem const* myItem;
    };
    Iterator begin() const { return Iterator(first()); }
    Iterator end() const { return Iterator(nullptr); }

    /// The first element of that name, null when there is none.
    T* lookup(AxString const& name) const
    {
        for (T* element : *this)
        {
            if (element->AxReaderWriter::name() == name)
            {
                return element;
            }
        }
        return nullptr;
    }
    using AxRwList::add;
    /// Appends a copy and answers it; for owning lists.
    T* add(T const& element)
    {
        static_assert(owns == 1, "a borrowing list cannot own the copy");
        T* copy = copyOf(element);
        AxRwList::add(copy);
        return copy;
    }
    /// Unlinks all elements, and deletes them when they are owned.
    void clear()
    {
        if constexpr (owns == 1)
        {
            AxRwList::removeAndDeleteAll();
        }
        else
        {
            AxRwList::removeAll();
        }
    }

    using AxRwList::getData;
    using AxRwList::getSelf;
    void getSelf(AxlObjPtr const& expression, AxFilenameList const& files, AxBindingsList const& bindings) override
    {
        unlinkBorrowed();
        AxRwList::getSelf(expression, files, bindings);
    }
    void reset() override
    {
        unlinkBorrowed();
        AxRwList::reset();
    }
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override
    {
        if (!keepNameless(item.get()))
        {
            auto element = std::make_unique<T>(headName(item), nullptr);
            element->getSelf(item, files, bindings);
            AxRwList::add(element.release());
        }
        return item;
    }
    /// The tag of an element with an "s" behind it; that of any list when elements have the tag of any record.
    char const* xmlType() const override
    {
        static AxString const plural = []
        {
            AxString const tag(T(AxSymbolString(), nullptr).xmlType());
            return tag == AxReaderWriter(AxSymbolString(), nullptr).xmlType() ? AxString("list") : tag + "s";
        }();
        return plural.c_str();
    }

protected:
    static AxSymbolString headName(AxlObjPtr const& item) { return AxSymbolString(item.get()->car()->text()); }

private:
    static constexpr AxTypeOps typeOps()
    {
        AxTypeOps ops = AxTypeOps::withCreator<AxRwTemplatedListPtr>();
        if constexpr (owns == 1)
        {
            ops.readElement =
                [](AxRwList& list, AxTextReader& reader, AxFilenameList const& files, AxBindingsList const& bindings)
            {
                std::string_view const head = reader.peekHead();
                if (head.empty())
                {
                    return false;
                }
                auto element = std::make_unique<T>(AxSymbolString(head), nullptr);
                reader.read(*element, files, bindings);
                list.add(element.release());
                return true;
            };
        }
        return ops;
    }
    inline static AxTypeEntry<AxRwTemplatedListPtr> const ourEntry{typeOps()};

    void unlinkBorrowed()
    {
        if constexpr (owns == 0)
        {
            AxList::removeAll();
        }
    }
    static T* copyOf(T const& element)
    {
        auto* copy = new T(element.AxReaderWriter::name(), nullptr);
        AxReaderWriterFactory::copyByType(*copy, element);
        return copy;
    }
    void copyFrom(AxRwTemplatedListPtr const& other)
    {
        for (T* element : other)
        {
            AxList::add(static_cast<AxReaderWriter*>(owns == 1 ? copyOf(*element) : element));
        }
    }
};
