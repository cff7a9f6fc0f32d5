#pragma once

#include "AxRecordOf.h"
#include "AxZedObjectParameters.h"

#include <new>

/// An object record's class says what it holds; this base supplies its type name, its constructors, its clones and its
/// creator.
///
/// A class derives as `class AxBombParameters : public AxObjectRecordOf<AxBombParameters, AxZedObjectParameters,
/// "bomb-param">`, says `using AxObjectRecordOf::AxObjectRecordOf;`, and binds its members by in-class initialisers. A
/// class whose constructor marks or changes defaults declares `(AxSymbolString, AxReaderWriterRegistry*,
/// AxEnvironmentPtr const&, AxEnvValuePtr const*)` itself, which serves all forms of names, and leaves the `using` out.
/// The protected `(Derived const& other, AxSymbolString name, AxReaderWriterRegistry* parent)` is for classes that copy
/// one of their bases.
template <class Derived, class Base, AxFixedText typeName>
class AxObjectRecordOf : public Base
{
public:
    AxObjectRecordOf(AxSymbolString name, AxReaderWriterRegistry* parent, AxEnvironmentPtr const& env = {},
                     AxEnvValuePtr const* node = nullptr)
        : Base(name, parent, env, node)
    {
    }
    AxObjectRecordOf(AxString const& name, AxReaderWriterRegistry* parent, AxEnvironmentPtr const& env = {},
                     AxEnvValuePtr const* node = nullptr)
        : Base(AxSymbolString(name), parent, env, node)
    {
    }
    AxObjectRecordOf(char const* name, AxReaderWriterRegistry* parent, AxEnvironmentPtr const& env = {},
                     AxEnvValuePtr const* node = nullptr)
        : Base(AxSymbolString(name), parent, env, node)
    {
    }
    AxObjectRecordOf(AxObjectRecordOf const&) = delete;

    AxObjectRecordOf& operator=(AxObjectRecordOf const& other)
    {
        AxZedObjectParameters::operator=(other);
        return *this;
    }

    AxString type() const override { return typeName.text; }
    char const* readerWriterType() const override { return typeName.text; }
    using Base::clone;
    AxZedObjectParameters* clone(AxSymbolString name, AxReaderWriterRegistry* registry) const override
    {
        try
        {
            auto made = std::make_unique<Derived>(name, registry, AxEnvironmentPtr(), nullptr);
            made->AxZedObjectParameters::operator=(*this);
            return made.release();
        }
        catch (std::bad_alloc const&)
        {
            AxZedObjectParameters::reportCloneFailure(typeid(Derived));
            return nullptr;
        }
    }
    AxZedObjectParameters* clone(AxString const& name, AxReaderWriterRegistry* registry) const override
    {
        return clone(AxSymbolString(name), registry);
    }
    static AxZedObjectParameters* creator(AxEnvironmentPtr env, AxEnvValuePtr* node)
    {
        return new (std::nothrow) Derived(AxSymbolString(), nullptr, env, node);
    }
};
