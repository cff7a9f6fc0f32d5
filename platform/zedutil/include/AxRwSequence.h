#pragma once

#include "AxRwElement.h"
#include "AxlObj.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

/// Values written side by side, `(keyword v v v)`, held in the container `C`.
///
/// Assigning a whole container leaves the value-specified flag alone, as assigning a value does; adding and removing
/// single values are edits and set it.
template <class C>
class AxRwSequence : public AxReaderWriter
{
public:
    using ValueType = typename C::value_type;

    AxRwSequence(AxSymbolString keyword, AxReaderWriterRegistry* registry) : AxReaderWriter(keyword, registry)
    {
        setFlag(Value, true);
    }
    AxRwSequence(AxString const& keyword, AxReaderWriterRegistry* registry)
        : AxRwSequence(AxSymbolString(keyword), registry)
    {
    }
    AxRwSequence(char const* keyword, AxReaderWriterRegistry* registry)
        : AxRwSequence(AxSymbolString(keyword), registry)
    {
    }
    AxRwSequence(AxKeyword const& keyword, AxReaderWriterRegistry* registry) : AxReaderWriter(keyword, registry)
    {
        setFlag(Value, true);
    }
    AxRwSequence(AxSymbolString name, AxRwSequence const& other, AxReaderWriterRegistry* registry)
        : AxReaderWriter(name, other, registry), myValues(other.myValues)
    {
        setFlag(Value, true);
    }
    AxRwSequence(AxRwSequence const& other, AxReaderWriterRegistry* registry)
        : AxRwSequence(other.AxReaderWriter::name(), other, registry)
    {
    }
    AxRwSequence(AxRwSequence const& other) : AxRwSequence(other, nullptr) {}

    AxRwSequence& operator=(AxRwSequence const& other)
    {
        if (this != &other)
        {
            myValues = other.myValues;
            carryState(other);
        }
        return *this;
    }
    AxRwSequence& operator=(C const& values)
    {
        setValue(values);
        return *this;
    }

    C const& value() const { return myValues; }
    operator C const&() const { return myValues; }
    void setValue(C const& values)
    {
        myValues = values;
        arrange();
        valueAssigned();
    }

    std::size_t size() const { return myValues.size(); }
    bool empty() const { return myValues.empty(); }
    auto begin() const { return myValues.begin(); }
    auto end() const { return myValues.end(); }
    ValueType const&
    operator[](std::size_t index) const requires std::random_access_iterator<typename C::const_iterator>
    {
        return myValues[index];
    }
    bool contains(ValueType const& value) const { return std::find(begin(), end(), value) != end(); }
    void add(ValueType const& value)
    {
        myValues.push_back(value);
        edited();
    }
    /// Takes out the first such value; false when there is none.
    bool remove(ValueType const& value)
    {
        auto const found = std::find(myValues.begin(), myValues.end(), value);
        if (found == myValues.end())
        {
            return false;
        }
        myValues.erase(found);
        edited();
        return true;
    }
    void clear()
    {
        myValues.clear();
        edited();
    }

    bool equals(AxRwSequence const& other) const
    {
        return std::equal(begin(), end(), other.begin(), other.end(), AxRwElement<ValueType>::same);
    }
    bool operator==(AxRwSequence const& other) const { return equals(other); }

    using AxReaderWriter::getData;
    using AxReaderWriter::putData;
    AxlObjPtr getData(AxlObjPtr const& items, AxFilenameList const&, AxBindingsList const& bindings) override
    {
        AxEmbeddedReferences references{bindings};
        C values;
        AxlObj const* rest = items.get();
        while (rest->isPair())
        {
            ValueType value{};
            if (!AxRwElement<ValueType>::read(rest, value, references))
            {
                reject(rest, AxRwElement<ValueType>::expected());
                return AxlObjPtr(rest);
            }
            values.push_back(value);
        }
        myValues = std::move(values);
        arrange();
        if (!references.first.isNull())
        {
            keepReference(references.first, axWrittenItems(items.get()), references.complete);
        }
        return AxlObjPtr(rest);
    }
    void putData(std::string& out, int) override
    {
        char const* separator = "";
        for (auto const& value : myValues)
        {
            out += separator;
            separator = " ";
            AxRwElement<ValueType>::write(out, value);
        }
    }
    /// To the values of the default reader-writer, else to none.
    void reset() override
    {
        auto const* const standard = dynamic_cast<AxRwSequence const*>(AxReaderWriter::defaultRWValue());
        C values = standard ? standard->myValues : C();
        AxReaderWriter::reset();
        myValues = std::move(values);
    }
    char const* xmlType() const override { return AxRwElement<ValueType>::xmlType(); }

private:
    void edited()
    {
        arrange();
        valueAssigned();
        setFlag(Specified, true);
    }
    void arrange()
    {
        if constexpr (AxRwElement<ValueType>::isSet)
        {
            std::sort(myValues.begin(), myValues.end());
            myValues.erase(std::unique(myValues.begin(), myValues.end()), myValues.end());
        }
    }

    C myValues;
};
