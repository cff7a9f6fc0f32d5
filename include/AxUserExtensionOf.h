#pragma once

#include "AxRecordOf.h"
#include "AxZedStateRepositoryUserExtension.h"

#include <memory>

/// What a project adds to the state repository says what it holds; this base supplies its type name, its constructors,
/// its clone and its creator.
///
/// A class derives as `class CrewExtension : public AxUserExtensionOf<CrewExtension, "crew-extension">`, says
/// `using AxUserExtensionOf::AxUserExtensionOf;`, and binds its members by in-class initialisers. It is registered by
/// `AxZedStateRepositoryUserExtension::factory()->addCreator("crew-extension", &CrewExtension::creator)`.
template <class Derived, AxFixedText typeName, class Base = AxZedStateRepositoryUserExtension>
class AxUserExtensionOf : public Base
{
public:
    AxUserExtensionOf(AxSymbolString name, AxReaderWriterRegistry* registry) : Base(name, registry) {}

    AxString type() const override { return typeName.text; }
    AxZedStateRepositoryUserExtension* clone(AxSymbolString name, AxReaderWriterRegistry* registry) const override
    {
        auto made = std::make_unique<Derived>(name, registry);
        made->assign(*this);
        return made.release();
    }
    static AxZedStateRepositoryUserExtension* creator(AxString const&)
    {
        return new Derived(AxSymbolString(), nullptr);
    }
};
