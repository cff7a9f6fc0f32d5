#pragma once

#include "AxExport.h"
#include "AxFilename.h"
#include "AxList.h"
#include "AxObjectType.h"
#include "AxString.h"

#include <list>
#include <memory>
#include <vector>

class AxTypeIndex;
class AxZedObjectParameters;
class AxZedParameterDbEntry;

/// Answers which parameter record describes the objects of a type; complete in memory, the base of databases on disk.
///
/// Entries stand in ascending order of their types, so that a pattern stands before all that it covers. A look-up
/// answers the entry of exactly the asked type, else the last pattern that the type fits. Used from one thread.
class ZEDOBJPARAM_API AxZedParameterDb
{
public:
    AxZedParameterDb();
    AxZedParameterDb(AxZedParameterDb const&) = delete;
    AxZedParameterDb& operator=(AxZedParameterDb const&) = delete;

    // ---- The order of the virtual operations is part of the interface. ----
    /// Deletes all entries with their records.
    virtual ~AxZedParameterDb();
    virtual bool init();
    /// Adds an exact entry that owns `params`. The entry is usable until the next change of its type. Null, and a
    /// warning, for null `params`, and without memory for the entry; `params` then stays the caller's.
    virtual AxZedParameterDbEntry* add(AxObjectType const& type, AxZedObjectParameters* params);
    /// The record of the best entry, null when none fits; it dies with its entry. `matchedType` receives the entry's
    /// type and is untouched by a miss. `info` is used by databases on disk.
    virtual AxZedObjectParameters* lookup(AxObjectType const& type, AxObjectType* matchedType = nullptr,
                                          AxString* info = nullptr) const;
    /// Deletes the best entry if its type is exactly `type`; a pattern that merely fits stays.
    virtual void remove(AxObjectType const& type);
    virtual void removeAll();
    /// The items in order; the data of each is an AxZedParameterDbEntry.
    virtual AxList const& parameterList() const;
    /// Here: true, and nothing happens.
    virtual bool load(AxFilename const& file);
    /// Here: true, and nothing happens.
    virtual bool save(AxFilename const& file);
    virtual void addParameters(AxObjectType const& type, AxZedObjectParameters* params);

protected:
    /// The item of the best entry, null when none fits.
    virtual AxListItem* lookupParameters(AxObjectType const& type) const;

public:
    virtual AxZedObjectParameters* lookupParameters(AxObjectType const& type, AxObjectType* matchedType) const;
    virtual void removeParameters(AxObjectType const& type);
    virtual void removeAndDeleteAll();
    /// The best entry, whether it holds a record or not; null when none fits.
    virtual AxZedParameterDbEntry* lookupParameterDbEntry(AxObjectType const& type, AxObjectType* matchedType) const;
    virtual int numParameterEntries() const;
    /// One list for the process: the extensions that file members of system definitions try.
    virtual std::list<AxString>* getSysDefExtensionList();
    virtual void addExtension(AxString ext);

protected:
    /// Takes ownership and puts the entry in its place. An entry of equal type is deleted first, unless it is exact
    /// and the new one is for a match type; the new one then stands behind it, or, with nothing sorting above, is kept
    /// outside the list.
    virtual void addParameterDbEntry(AxZedParameterDbEntry* entry);
    virtual AxZedParameterDbEntry* createParameterEntry() const;
    // ---- End of the virtual operations. ----

public:
    static AxZedParameterDb* create();

    /// What answers a look-up, without loading anything.
    struct Match
    {
        AxZedParameterDbEntry* entry = nullptr;
        /// The entry's type is the asked one, not a pattern that it fits.
        bool exact = false;
    };
    Match entryForLookup(AxObjectType const& type) const;
    /// Makes room for so many entries that will be added, at once instead of bit by bit.
    void expectEntries(std::size_t count);

private:
    friend class AxZedParameterDbEntry;

    AxZedParameterDbEntry* entryOf(AxListItem const* item) const;
    void insert(AxZedParameterDbEntry& entry);
    void leaveOutside(AxZedParameterDbEntry& entry);
    void release(AxZedParameterDbEntry& entry);
    void forgetNumber(AxZedParameterDbEntry const& entry);
    static void destroy(AxZedParameterDbEntry* entry);
    /// Takes the entry out of its list and destroys it.
    void discard(AxZedParameterDbEntry& entry);
    void typeChanges();

    struct Answer
    {
        AxListItem const* item = nullptr;
        AxZedParameterDbEntry* entry = nullptr;
    };
    // The entries hold the items of both lists, so that adding and removing one needs no memory.
    AxList myList;
    AxList myOutside; // what the insertion rule left outside, in ascending order of the types
    std::unique_ptr<AxTypeIndex> myIndex;
    /// All entries as they came, which is how they stand in memory: destroyed in that order they cost less than half.
    /// Null for those that went; empty without memory for it.
    std::vector<AxZedParameterDbEntry*> myEntries;
    std::size_t myNumGone = 0;
    bool myKnowsEntries = true;
    /// While an entry is inserted, its type: of what is found for it only an equal type counts.
    AxObjectType const* myInsertedType = nullptr;
    /// Of the last look-up: its entry is known without reading the item, which costs a line of memory.
    mutable Answer myAnswer;
};
