#pragma once

#include "AxReaderWriterFactory.h"
#include "AxStringKeyFactoryWithParam.h"
#include "AxTextReader.h"
#include "AxTypedListIterator.h"
#include "AxUnknownType.h"
#include "AxlObj.h"

#include <exception>
#include <memory>
#include <typeinfo>

/// An owning list of records of the family `T`, each element headed by the name of its class. `T` offers a static
/// `factory()` that answers an `AxStringKeyFactoryWithParam<T, AxString const&>*` and a virtual `clone() const`.
/// Elements whose type the factory does not know are reported and kept for writing.
template <class T>
class AxRwMultiTypeListTemplate : public AxRwList
{
public:
    AxRwMultiTypeListTemplate() = default;
    AxRwMultiTypeListTemplate(AxSymbolString name, AxReaderWriterRegistry* registry) : AxRwList(name, registry) {}
    AxRwMultiTypeListTemplate(AxString const& name, AxReaderWriterRegistry* registry) : AxRwList(name, registry) {}
    AxRwMultiTypeListTemplate(char const* name, AxReaderWriterRegistry* registry) : AxRwList(name, registry) {}
    AxRwMultiTypeListTemplate(AxKeyword const& keyword, AxReaderWriterRegistry* registry) : AxRwList(keyword, registry)
    {
    }
    AxRwMultiTypeListTemplate(AxSymbolString name, AxRwMultiTypeListTemplate const& other,
                              AxReaderWriterRegistry* registry)
        : AxRwList(name, other, registry)
    {
        copyListFrom(other);
        carryState(other);
    }
    AxRwMultiTypeListTemplate(AxRwMultiTypeListTemplate const& other)
        : AxRwMultiTypeListTemplate(other.AxReaderWriter::name(), other, nullptr)
    {
    }
    ~AxRwMultiTypeListTemplate() override
    {
        static_cast<void>(&ourEntry);
        clear();
    }

    AxRwMultiTypeListTemplate& operator=(AxRwMultiTypeListTemplate const& other)
    {
        if (this != &other)
        {
            clear();
            copyListFrom(other);
            carryState(other);
        }
        return *this;
    }

    using AxRwList::add;
    /// Appends a clone and answers it. Overload resolution prefers this to the adding of a pointer that is to be owned:
    /// use `addToEnd` for that. Null is ignored and answered.
    virtual T* add(T const* element)
    {
        if (!element)
        {
            return nullptr;
        }
        T* copy = element->clone();
        AxRwList::addToEnd(copy);
        return copy;
    }

    /// Deletes the elements.
    void clear() { AxRwList::removeAndDeleteAll(); }
    /// Appends copies of the other's elements.
    void copyListFrom(AxRwMultiTypeListTemplate const& other)
    {
        if (&other == this)
        {
            return;
        }
        for (T const* element : other)
        {
            AxRwList::addToEnd(element->clone());
        }
    }

    /// Pairwise in list order, each of the same class and equal as members of a record would be.
    bool equals(AxRwMultiTypeListTemplate const& other) const
    {
        if (count() != other.count())
        {
            return false;
        }
        auto right = other.begin();
        for (T const* left : *this)
        {
            T const* const theirs = *right;
            if (typeid(*left) != typeid(*theirs) || !AxReaderWriter::factory()->compareReaderWriter(left, theirs))
            {
                return false;
            }
            ++right;
        }
        return true;
    }
    bool operator==(AxRwMultiTypeListTemplate const& other) const { return equals(other); }

    AxTypedListIterator<T> begin() const { return AxTypedListIterator<T>(first()); }
    AxTypedListIterator<T> end() const { return AxTypedListIterator<T>(nullptr); }

    using AxRwList::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override
    {
        AxlObj const* const head = item.get()->car();
        AxString const type(head->text());
        auto* const families = T::factory();
        if (std::unique_ptr<T> element(made(type)); element)
        {
            element->getSelf(item, files, bindings);
            AxRwList::addToEnd(element.release());
            return item;
        }
        std::vector<std::string_view> known;
        for (AxString const& key : families->keys())
        {
            known.push_back(key.string());
        }
        axReportUnknownType(type.string(), head,
                            "AxRwMultiTypeListTemplate: Cannot create content data of type \"" + type.string() + "\"\n",
                            known);
        keepElement(item.get());
        return item;
    }

private:
    /// Null for an unknown type, and when its creator throws.
    static T* made(AxString const& type)
    {
        try
        {
            return T::factory()->create(type, type);
        }
        catch (...)
        {
            return nullptr;
        }
    }
    static constexpr AxTypeOps typeOps()
    {
        AxTypeOps ops = AxTypeOps::withCreator<AxRwMultiTypeListTemplate>();
        ops.readElement =
            [](AxRwList& list, AxTextReader& reader, AxFilenameList const& files, AxBindingsList const& bindings)
        {
            std::string_view const head = reader.peekHead();
            AxString const type(head);
            std::unique_ptr<T> element(head.empty() ? nullptr : made(type));
            if (!element)
            {
                return false;
            }
            reader.read(*element, files, bindings);
            list.addToEnd(element.release());
            return true;
        };
        return ops;
    }
    inline static AxTypeEntry<AxRwMultiTypeListTemplate> const ourEntry{typeOps()};
};
