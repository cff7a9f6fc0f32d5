#pragma once

#include "AxComponentDescriptor.h"
#include "AxRecordOf.h"

#include <memory>

/// A component descriptor's class says what it holds; this base supplies its type name, its constructors, its clone
/// and its creator.
///
/// A class derives as `class AxTurretComponentDescriptor : public AxDescriptorOf<AxTurretComponentDescriptor,
/// AxActuatorComponentDescriptor, "turret-component-descriptor">`, says `using AxDescriptorOf::AxDescriptorOf;`, and
/// binds its members by in-class initialisers. Without a type name it keeps that of `Base`. A class of many members,
/// and one whose constructor assigns defaults, declares `(AxSymbolString, AxReaderWriterRegistry*)` itself and leaves
/// the `using` out: that one constructor serves all forms of names, and binds the members once, in the source file,
/// instead of wherever an object is made. The copy constructor `(Derived const& other, AxReaderWriterRegistry*
/// registry)` delegates to that of a name and calls `assign(other)`, once the members are there to be assigned. A clone
/// may be made without a constructor when all that the class holds is bound; so one that counts or enters its objects
/// overrides `clone`.
template <class Derived, class Base, AxFixedText typeName = "">
class AxDescriptorOf : public Base
{
public:
    AxDescriptorOf(AxSymbolString name, AxReaderWriterRegistry* registry) : Base(name, registry) {}
    AxDescriptorOf(AxString const& name, AxReaderWriterRegistry* registry) : Base(AxSymbolString(name), registry) {}
    AxDescriptorOf(char const* name, AxReaderWriterRegistry* registry) : Base(AxSymbolString(name), registry) {}
    AxDescriptorOf(AxDescriptorOf const&) = delete;

    AxDescriptorOf& operator=(AxDescriptorOf const& other)
    {
        this->assign(other);
        return *this;
    }

    AxString type() const override
    {
        if constexpr (sizeof typeName.text == 1)
        {
            return Base::type();
        }
        else
        {
            return typeName.text;
        }
    }
    char const* readerWriterType() const override
    {
        if constexpr (sizeof typeName.text == 1)
        {
            return Base::readerWriterType();
        }
        else
        {
            return typeName.text;
        }
    }
    AxComponentDescriptor* clone(AxReaderWriterRegistry* registry) const override
    {
        if (Derived* const copy = this->template plainCopy<Derived>(registry))
        {
            return copy;
        }
        auto made = std::make_unique<Derived>(this->AxReaderWriter::name(), registry);
        made->assign(*this);
        return made.release();
    }
    static AxComponentDescriptor* creator() { return new Derived(AxSymbolString(), nullptr); }
};
