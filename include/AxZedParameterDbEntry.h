#pragma once

#include "AxExport.h"
#include "AxListItem.h"
#include "AxObjectType.h"
#include "AxString.h"

#include <cstdint>

class AxZedObjectParameters;
class AxZedParameterDb;

/// One line of a parameter database: an object type or pattern, and the record that serves it.
///
/// The entry owns its record. While a database holds the entry, the database owns the entry.
class ZEDOBJPARAM_API AxZedParameterDbEntry
{
public:
    AxZedParameterDbEntry() : myItem(this) {}
    explicit AxZedParameterDbEntry(AxObjectType const& type) : myObjectType(type), myItem(this) {}
    AxZedParameterDbEntry(AxZedParameterDbEntry const&) = delete;
    AxZedParameterDbEntry& operator=(AxZedParameterDbEntry const&) = delete;

    // ---- The order of the virtual operations is part of the interface. ----
    /// Deletes the record; an entry that a database holds leaves it.
    virtual ~AxZedParameterDbEntry();
    virtual void setObjectType(AxObjectType const& type);
    virtual AxObjectType const& objectType() const;
    /// Takes ownership of `parameters`. A record held before is not deleted: replacing one is the caller's business.
    virtual void setParameters(AxZedObjectParameters* parameters);
    /// The record, null until one is set or loaded.
    virtual AxZedObjectParameters* parameters() const;
    /// Brings the record in when it lives elsewhere; null when that fails. Here: the record that is held.
    virtual AxZedObjectParameters* load();
    /// Here: the type's fields joined by ":".
    virtual AxString uniqueIdentifier() const;
    // ---- End of the virtual operations. ----

    /// A mark for entries that were added for the run only; such entries are not saved.
    bool temporary() const { return myTemporary; }
    void setTemporary(bool temporary) { myTemporary = temporary; }
    /// Whether the type is a pattern that is meant to serve many types; said by whoever adds the entry.
    bool typeIsMatchType() const { return myTypeIsMatchType; }
    void setTypeIsMatchType(bool isMatchType) { myTypeIsMatchType = isMatchType; }

    /// Keeps an entry in memory while code of the host's runs that may remove it from its database.
    class Use
    {
    public:
        explicit Use(AxZedParameterDbEntry& entry) : myEntry(entry) { ++entry.myNumUses; }
        Use(Use const&) = delete;
        Use& operator=(Use const&) = delete;
        ~Use();
        /// Whether it was removed meanwhile, and ends with this use.
        bool isGone() const { return myEntry.myIsGone; }

    private:
        AxZedParameterDbEntry& myEntry;
    };

private:
    friend class AxZedParameterDb;

    AxObjectType myObjectType;
    AxZedObjectParameters* myParameters = nullptr;
    AxZedParameterDb* myHolder = nullptr;
    AxListItem myItem;          // in a list of the holder's
    std::uint32_t myNumber = 0; // among the holder's entries, as they came
    std::uint16_t myNumUses = 0;
    bool myIsGone : 1 = false;    // removed while it was used
    bool myIsOutside : 1 = false; // of the list that answers
    bool myTemporary : 1 = false;
    bool myTypeIsMatchType : 1 = false;
};
