#pragma once

#include "AxRecordOf.h"
#include "AxSystemMetaDataEntry.h"
#include "axTryNew.h"

/// One kind of meta-data entry: its type name, its copies and its creator. A kind supplies the constructor
/// `(AxSymbolString, AxReaderWriterRegistry*)`, which also serves other forms of the name, and `compare`.
template <class Derived, AxFixedText className, AxFixedText typeName>
class AxSystemMetaDataEntryOf : public AxSystemMetaDataEntry
{
public:
    AxSystemMetaDataEntryOf(AxSymbolString name, AxReaderWriterRegistry* registry)
        : AxSystemMetaDataEntry(name, registry)
    {
    }

    AxString entryType() const override { return typeName.text; }
    AxSystemMetaDataEntry* clone() const override
    {
        return axTryNew<Derived>(AxReaderWriter::name(), static_cast<Derived const&>(*this), nullptr);
    }
    char const* readerWriterType() const override { return className.text; }
    char const* xmlType() const override { return className.text; }

    /// A new entry of that name in no registry; null when there is no memory for it.
    static AxSystemMetaDataEntry* create(AxString const& name)
    {
        return axTryNew<Derived>(AxSymbolString(name), nullptr);
    }
};
