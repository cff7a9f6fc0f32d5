#pragma once

#include "AxReaderWriter.h"

#include <algorithm>
#include <cstring>
#include <type_traits>

/// What the kinds that hold one value have in common. `Derived` supplies
///  - `static bool readValue(AxlObj const*& items, T& value)`: takes the leading items that make up a value and moves
///    past them; false, and nothing changed, when they are of another kind;
///  - `static void writeValue(std::string& out, T const& value)`;
///  - `static char const* typeName()`, `static char const* expected()`: for type tables and messages;
///  - `static bool same(T const& a, T const& b)`: equality as records compare their members.
///
/// A `Held` other than `T` is how a member keeps its value: it converts to `T const&`, and `T` is assigned to it.
///
/// Assigning a plain value leaves the value-specified flag alone; assigning another member takes over its flag.
template <class Derived, class T, bool isScalar, class Held = T>
class AxRwValueOf : public AxReaderWriter
{
    static constexpr bool isWord = std::is_trivially_copyable_v<T> && sizeof(T) <= sizeof(std::uint64_t);

public:
    AxRwValueOf(AxSymbolString keyword, AxReaderWriterRegistry* registry) : AxReaderWriter(keyword, registry)
    {
        markKind();
    }
    AxRwValueOf(AxString const& keyword, AxReaderWriterRegistry* registry) : AxReaderWriter(keyword, registry)
    {
        markKind();
    }
    AxRwValueOf(char const* keyword, AxReaderWriterRegistry* registry) : AxReaderWriter(keyword, registry)
    {
        markKind();
    }
    AxRwValueOf(AxKeyword const& keyword, AxReaderWriterRegistry* registry) : AxReaderWriter(keyword, registry, theKind)
    {
    }
    AxRwValueOf(AxKeyword const& keyword, T const& initial, AxReaderWriterRegistry* registry) requires isWord
        : AxReaderWriter(keyword, registry, theKind, wordOf(initial)),
          myValue(initial)
    {
    }
    AxRwValueOf(AxKeyword const& keyword, T const& initial, AxReaderWriterRegistry* registry) requires(!isWord)
        : AxReaderWriter(keyword, registry, theKind)
    {
        start(initial);
    }
    AxRwValueOf(AxSymbolString keyword, T const& initial, AxReaderWriterRegistry* registry)
        : AxReaderWriter(keyword, registry)
    {
        markKind();
        start(initial);
    }
    AxRwValueOf(AxSymbolString name, AxRwValueOf const& other, AxReaderWriterRegistry* registry)
        : AxReaderWriter(name, other, registry), myValue(other.myValue)
    {
        markKind();
    }
    AxRwValueOf(AxRwValueOf const& other, AxReaderWriterRegistry* registry)
        : AxRwValueOf(other.AxReaderWriter::name(), other, registry)
    {
    }
    AxRwValueOf(AxRwValueOf const& other) : AxReaderWriter(other), myValue(other.myValue) { markKind(); }

    AxRwValueOf& operator=(AxRwValueOf const& other)
    {
        if (this != &other)
        {
            myValue = other.myValue;
            if (!carryPlainState(other))
            {
                carryState(other);
            }
        }
        return *this;
    }
    T const& operator=(T const& value)
    {
        setValue(value);
        return myValue;
    }

    T const& value() const { return myValue; }
    void setValue(T const& value)
    {
        myValue = value;
        valueAssigned();
    }
    /// Takes a value that was read, and marks it specified.
    void takeRead(Held value)
    {
        myValue = std::move(value);
        valueRead();
    }
    /// The comparison that records use for this member.
    bool equals(AxRwValueOf const& other) const { return Derived::same(myValue, other.myValue); }

    using AxReaderWriter::getData;
    using AxReaderWriter::putData;
    AxlObjPtr getData(AxlObjPtr const& items, AxFilenameList const&, AxBindingsList const&) override
    {
        AxlObj const* rest = items.get();
        T value{};
        if (Derived::readValue(rest, value))
        {
            myValue = std::move(value);
        }
        else
        {
            reject(rest, Derived::expected());
        }
        return AxlObjPtr(rest);
    }
    void putData(std::string& out, int) override { Derived::writeValue(out, myValue); }
    char const* readerWriterType() const override { return Derived::typeName(); }
    char const* xmlType() const override { return Derived::typeName(); }
    void reset() override
    {
        T value{};
        if (auto const* other = dynamic_cast<Derived const*>(AxReaderWriter::defaultRWValue()))
        {
            value = other->value();
        }
        else if constexpr (isWord)
        {
            std::uint64_t word = 0;
            initialValue(&word, sizeof word);
            std::memcpy(&value, &word, sizeof value);
        }
        else if constexpr (std::is_trivially_copyable_v<T>)
        {
            initialValue(&value, sizeof value);
        }
        else
        {
            void const* id = nullptr;
            if (initialValue(&id, sizeof id))
            {
                value = AxSymbolString::fromId(id).string();
            }
        }
        AxReaderWriter::reset();
        myValue = value;
    }

protected:
    void start(T const& initial)
    {
        myValue = initial;
        // A null value is noted too: objects of one class may differ in it.
        if constexpr (isWord)
        {
            std::uint64_t const word = wordOf(initial);
            noteInitialValue(&word, sizeof word);
        }
        else if constexpr (std::is_trivially_copyable_v<T>)
        {
            noteInitialValue(&initial, sizeof initial);
        }
        else
        {
            void const* id = AxSymbolString(initial).id();
            noteInitialValue(&id, sizeof id);
        }
    }

    Held myValue{};

private:
    friend class AxPlainValue;

    static constexpr Flag theKind = static_cast<Flag>(isScalar ? Value | Scalar : Value);
    static std::uint64_t wordOf(T const& value)
    {
        std::uint64_t word = 0;
        std::memcpy(&word, &value, std::min(sizeof value, sizeof word));
        return word;
    }
    void markKind() { setFlag(theKind, true); }
};
