#pragma once

#include "AxReaderWriter.h"
#include "AxStringKeyFactoryWithParam.h"

/// Tells the engine one way in which a component system is wired to the simulated object it is used in. Each kind is a
/// class of its own. Owned by the list that holds it.
class ZEDOBJPARAM_API AxSystemMetaDataEntry : public AxReaderWriter
{
public:
    using Factory = AxStringKeyFactoryWithParam<AxSystemMetaDataEntry, AxString const&>;

    AxSystemMetaDataEntry(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxSystemMetaDataEntry(AxSystemMetaDataEntry const&) = delete;
    ~AxSystemMetaDataEntry() override;

    AxSystemMetaDataEntry& operator=(AxSystemMetaDataEntry const& other);

    /// The name under which the factory makes the kind, and its head in text.
    virtual AxString entryType() const = 0;
    /// A copy of the same kind and name; null when there is no memory for it.
    virtual AxSystemMetaDataEntry* clone() const = 0;
    /// Whether both hold the same; `other` must be of the same kind.
    virtual bool compare(AxSystemMetaDataEntry const& other) const = 0;
    /// As `compare`, and false for entries of different kinds.
    bool equals(AxSystemMetaDataEntry const& other) const;

    using AxReaderWriter::putSelf;
    void putSelf(std::string& out, int indent, bool all, AxFilename const& file) override;

    /// The one of the process, which knows every kind.
    static Factory* factory();
    /// A new entry of the kind, named by it; null when the kind is unknown.
    static AxSystemMetaDataEntry* createMetaDataEntry(AxString const& type);
};
