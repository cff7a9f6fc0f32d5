#pragma once

#include "AxRecordOf.h"
#include "AxSystemParameterData.h"
#include "axTryNew.h"

#include <type_traits>

/// One kind of parameter data, with a default value that a `Kind` holds.
///
/// A kind derives as `class AxSystemIntParameterData : public AxSystemParameterDataOf<AxSystemIntParameterData,
/// "AxSystemIntParameterData", "int-parameter-data", AxRwInt>` and says
/// `using AxSystemParameterDataOf::AxSystemParameterDataOf;`. A kind with members of its own adds its copy constructors
/// and its equality. Numbers are summed up when systems are aggregated, unless the record says otherwise.
template <class Derived, AxFixedText className, AxFixedText typeName, class Kind>
class AxSystemParameterDataOf : public AxSystemParameterData
{
public:
    using ValueType = std::decay_t<decltype(std::declval<Kind const&>().value())>;

    AxSystemParameterDataOf(AxSymbolString name, AxReaderWriterRegistry* registry)
        : AxSystemParameterData(name, registry, Kind::typeName(), isNumber ? "sum" : "none")
    {
    }
    AxSystemParameterDataOf(AxString const& name, AxReaderWriterRegistry* registry)
        : AxSystemParameterDataOf(AxSymbolString(name), registry)
    {
    }
    AxSystemParameterDataOf(char const* name, AxReaderWriterRegistry* registry)
        : AxSystemParameterDataOf(AxSymbolString(name), registry)
    {
    }
    AxSystemParameterDataOf(AxSymbolString name, AxSystemParameterDataOf const& other, AxReaderWriterRegistry* registry)
        : AxSystemParameterDataOf(name, registry)
    {
        assign(other);
    }
    AxSystemParameterDataOf(AxSystemParameterDataOf const& other)
        : AxSystemParameterDataOf(other.AxReaderWriter::name(), other, nullptr)
    {
    }

    AxSystemParameterDataOf& operator=(AxSystemParameterDataOf const& other)
    {
        assign(other);
        return *this;
    }

    ValueType defaultValue() const { return myDefaultValue.value(); }
    void setDefaultValue(ValueType const& value)
    {
        myDefaultValue.setValue(value);
        myDefaultValue.setValueSpecified(true, false);
    }

    AxString parameterType() const override { return typeName.text; }
    AxSystemParameterData* clone() const override { return copyAs<Derived>(); }
    bool operator==(AxSystemParameterData const& other) const override
    {
        auto const* same = dynamic_cast<AxSystemParameterDataOf const*>(&other);
        return same && AxSystemParameterData::operator==(other) && myDefaultValue.equals(same->myDefaultValue);
    }
    friend bool operator==(Derived const& a, Derived const& b)
    {
        AxSystemParameterData const& anyB = b;
        return a.operator==(anyB);
    }
    void assignDefaultValueToReaderWriter(AxReaderWriter* target) const override
    {
        if (auto* const same = dynamic_cast<Kind*>(target))
        {
            same->setValue(myDefaultValue.value());
        }
    }
    char const* readerWriterType() const override { return className.text; }
    char const* xmlType() const override { return className.text; }

    /// A new record of that name in no registry; null when there is no memory for it.
    static AxSystemParameterData* create(AxString const& name) { return axTryNew<Derived>(name, nullptr); }

protected:
    template <class Copy>
    Copy* copyAs() const
    {
        auto* const made = axTryNew<Copy>(AxReaderWriter::name(), nullptr);
        if (made)
        {
            made->assign(*this);
        }
        return made;
    }

private:
    static constexpr bool isNumber = std::is_arithmetic_v<ValueType> && !std::is_same_v<ValueType, bool>;

    Kind myDefaultValue{{"default-value", "", "The parameter's value where a user of the system gives none."},
                        registry()};
};
