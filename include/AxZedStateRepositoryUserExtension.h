#pragma once

#include "AxReaderWriter.h"

class AxZedStateRepositoryUserExtensionFactory;

/// What a project adds to the state repository of its objects: keywords of its own, and the kinds of objects that
/// scripts may ask the repository for. This base adds no keyword. Owned by the object record that read it.
class ZEDOBJPARAM_API AxZedStateRepositoryUserExtension : public AxReaderWriter
{
public:
    AxZedStateRepositoryUserExtension(AxSymbolString name, AxReaderWriterRegistry* registry)
        : AxReaderWriter(name, registry)
    {
    }
    AxZedStateRepositoryUserExtension(AxZedStateRepositoryUserExtension const&) = delete;
    AxZedStateRepositoryUserExtension& operator=(AxZedStateRepositoryUserExtension const&) = delete;
    ~AxZedStateRepositoryUserExtension() override;

    /// The name under which the factory makes the class.
    virtual AxString type() const;
    virtual AxZedStateRepositoryUserExtension* clone(AxSymbolString name, AxReaderWriterRegistry* registry) const;
    /// A subclass appends its own to those of its base.
    virtual std::list<AxString> scriptObjectKinds() const;

    /// An extension without members of its own is written only when it keeps items that were read.
    void writeSelf(std::string& out, int indent, bool all, AxFilename const& file) override;
    char const* readerWriterType() const override;

    /// A built-in factory that knows the base type, until a host sets its own, which stays the host's.
    static AxZedStateRepositoryUserExtensionFactory* factory();
    /// Null: no extension can be created then.
    static void setFactory(AxZedStateRepositoryUserExtensionFactory* factory);
    static AxString const& baseType();
};
