#pragma once

#include "AxReaderWriter.h"

#include <cstddef>
#include <typeinfo>

/// A reader/writer that holds members: its registry is part of the object, where others make theirs on demand.
class ZEDOBJPARAM_API AxRecord : public AxReaderWriter
{
public:
    AxRecord(AxSymbolString name, AxReaderWriterRegistry* registry, bool specified = false);
    AxRecord(AxKeyword const& keyword, AxReaderWriterRegistry* registry);
    AxRecord(AxRecord const&) = delete;
    ~AxRecord() override;

    AxRecord& operator=(AxRecord const& other)
    {
        assign(other);
        return *this;
    }

    AxReaderWriterRegistry* registry() { return &myRest.registry; }

protected:
    /// What constructing an object of this class under the same name and assigning this one to it makes, entered in
    /// `registry` when that is given; but in one step. Null when that cannot be told from the members alone: for an
    /// object of another class than `Made`, one that holds more than plain values, and one with unusual state.
    template <class Made>
    Made* plainCopy(AxReaderWriterRegistry* registry) const
    {
        return static_cast<Made*>(plainCopy(typeid(Made), sizeof(Made), registry));
    }

private:
    AxRecord* plainCopy(std::type_info const& type, std::size_t size, AxReaderWriterRegistry* registry) const;

    Rest myRest;
};
