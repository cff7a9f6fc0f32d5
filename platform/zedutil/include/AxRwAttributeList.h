#pragma once

#include "AxRwElement.h"
#include "AxlObj.h"

#include <algorithm>
#include <map>

/// Named values of one kind, `(keyword ("name" v) ...)`, written in the order of the names; of a repeated name the last
/// value counts.
template <class V>
class AxRwAttributeList : public AxReaderWriter
{
public:
    AxRwAttributeList(AxSymbolString keyword, AxReaderWriterRegistry* registry) : AxReaderWriter(keyword, registry)
    {
        setFlag(Value, true);
    }
    AxRwAttributeList(AxString const& keyword, AxReaderWriterRegistry* registry)
        : AxRwAttributeList(AxSymbolString(keyword), registry)
    {
    }
    AxRwAttributeList(char const* keyword, AxReaderWriterRegistry* registry)
        : AxRwAttributeList(AxSymbolString(keyword), registry)
    {
    }
    AxRwAttributeList(AxKeyword const& keyword, AxReaderWriterRegistry* registry) : AxReaderWriter(keyword, registry)
    {
        setFlag(Value, true);
    }
    AxRwAttributeList(AxSymbolString name, AxRwAttributeList const& other, AxReaderWriterRegistry* registry)
        : AxReaderWriter(name, other, registry), myAttributes(other.myAttributes)
    {
        setFlag(Value, true);
    }
    AxRwAttributeList(AxRwAttributeList const& other, AxReaderWriterRegistry* registry)
        : AxRwAttributeList(other.AxReaderWriter::name(), other, registry)
    {
    }
    AxRwAttributeList(AxRwAttributeList const& other) : AxRwAttributeList(other, nullptr) {}

    AxRwAttributeList& operator=(AxRwAttributeList const& other)
    {
        if (this != &other)
        {
            myAttributes = other.myAttributes;
            carryState(other);
        }
        return *this;
    }
    /// Leaves the value-specified flag alone.
    AxRwAttributeList& operator=(std::map<AxString, V> const& attributes)
    {
        myAttributes = attributes;
        valueAssigned();
        return *this;
    }

    std::map<AxString, V> attributes() const { return myAttributes; }
    std::size_t size() const { return myAttributes.size(); }
    bool empty() const { return myAttributes.empty(); }
    bool contains(AxString const& name) const { return myAttributes.contains(name); }
    V get(AxString const& name, V const& fallback = V()) const
    {
        auto const found = myAttributes.find(name);
        return found == myAttributes.end() ? fallback : found->second;
    }
    /// Adds or replaces, and marks the list specified.
    void set(AxString const& name, V const& value)
    {
        myAttributes.insert_or_assign(name, value);
        edited();
    }
    /// False when there is none of that name.
    bool remove(AxString const& name)
    {
        if (myAttributes.erase(name) == 0)
        {
            return false;
        }
        edited();
        return true;
    }

    bool equals(AxRwAttributeList const& other) const
    {
        return std::equal(myAttributes.begin(), myAttributes.end(), other.myAttributes.begin(),
                          other.myAttributes.end(),
                          [](auto const& a, auto const& b)
                          { return a.first == b.first && AxRwElement<V>::same(a.second, b.second); });
    }
    bool operator==(AxRwAttributeList const& other) const { return equals(other); }

    using AxReaderWriter::getData;
    using AxReaderWriter::putData;
    AxlObjPtr getData(AxlObjPtr const& items, AxFilenameList const&, AxBindingsList const& bindings) override
    {
        AxEmbeddedReferences references{bindings};
        std::map<AxString, V> attributes;
        AxlObj const* rest = items.get();
        for (; rest->isPair(); rest = rest->cdr())
        {
            AxlObj const* attribute = rest->car();
            AxString name;
            V value{};
            if (!attribute->isPair() || !AxRwElement<AxString>::read(attribute, name, references) ||
                !attribute->isPair() || !AxRwElement<V>::read(attribute, value, references) || attribute->isPair())
            {
                reject(rest, "attributes (\"name\" value)");
                return AxlObjPtr(rest);
            }
            attributes.insert_or_assign(name, value);
        }
        myAttributes = std::move(attributes);
        if (!references.first.isNull())
        {
            keepReference(references.first, axWrittenItems(items.get()), references.complete);
        }
        return AxlObjPtr(rest);
    }
    void putData(std::string& out, int) override
    {
        char const* separator = "";
        for (auto const& [name, value] : myAttributes)
        {
            out += separator;
            separator = " ";
            out += '(';
            AxRwElement<AxString>::write(out, name);
            out += ' ';
            AxRwElement<V>::write(out, value);
            out += ')';
        }
    }
    /// To the attributes of the default reader-writer, else to none.
    void reset() override
    {
        auto const* const standard = dynamic_cast<AxRwAttributeList const*>(AxReaderWriter::defaultRWValue());
        std::map<AxString, V> attributes = standard ? standard->myAttributes : std::map<AxString, V>();
        AxReaderWriter::reset();
        myAttributes = std::move(attributes);
    }
    char const* xmlType() const override { return "attributes"; }

private:
    void edited()
    {
        valueAssigned();
        setFlag(Specified, true);
    }

    std::map<AxString, V> myAttributes;
};
