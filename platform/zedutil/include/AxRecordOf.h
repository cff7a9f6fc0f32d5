#pragma once

#include "AxRecord.h"

#include <algorithm>
#include <cstddef>
#include <memory>

/// A text as a template argument.
template <std::size_t n>
struct AxFixedText
{
    consteval AxFixedText(char const (&from)[n]) { std::copy_n(from, n, text); }
    char text[n];
};

/// A record class says what it holds; this base supplies its type name, its constructors and its copies.
///
/// A class derives as `class AxLoadPoint : public AxRecordOf<AxLoadPoint, "AxLoadPoint">`, says
/// `using AxRecordOf::AxRecordOf;`, and binds its members by in-class initialisers. Classes that are copied by value
/// add `AxLoadPoint(AxSymbolString name, AxLoadPoint const& other, AxReaderWriterRegistry* registry)`, one without the
/// name, and `operator=`. They cannot be inherited: the members to assign to are there only after this base.
template <class Derived, AxFixedText typeName, class Base = AxRecord>
class AxRecordOf : public Base
{
public:
    AxRecordOf(AxSymbolString name, AxReaderWriterRegistry* registry) : Base(name, registry) {}
    AxRecordOf(AxString const& name, AxReaderWriterRegistry* registry) : Base(AxSymbolString(name), registry) {}
    AxRecordOf(char const* name, AxReaderWriterRegistry* registry) : Base(AxSymbolString(name), registry) {}
    AxRecordOf(AxKeyword const& keyword, AxReaderWriterRegistry* registry) : Base(keyword, registry) {}
    AxRecordOf(AxRecordOf const&) = delete;

    AxRecordOf& operator=(AxRecordOf const& other)
    {
        this->assign(other);
        return *this;
    }
    char const* readerWriterType() const override { return typeName.text; }
    char const* xmlType() const override { return typeName.text; }

    /// A copy on the heap under the same name, entered in `registry` when that is given.
    Derived* copy(AxReaderWriterRegistry* registry = nullptr) const
    {
        auto made = std::make_unique<Derived>(this->AxReaderWriter::name(), registry);
        made->assign(static_cast<Derived const&>(*this));
        return made.release();
    }
};
