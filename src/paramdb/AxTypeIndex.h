#pragma once

#include "AxList.h"
#include "AxTypeSort.h"
#include "AxTypeTable.h"

#include <map>

/// Keeps a list in ascending order of the object types of its items and finds the best match for a type.
///
/// What is found is by definition the result of a walk from the head: items below the asked type that it fits become
/// the best so far; the first item not below it answers at once if equal, ends the walk if the type does not fit it,
/// and otherwise becomes the best. For types without negative fields that is the greatest fitting type, and among
/// fitting types the one whose set of wildcards is least: exact types stand in one hash table, patterns in a second,
/// asked shape by shape in ascending order. Other types go through the ordered map. Built when first needed; a list
/// that was changed behind the index, or whose types were, is looked at anew, and walked while it is out of order.
///
/// Tables and map are there for speed alone: without memory for them they are forgotten, and what is asked is answered
/// by a walk. Nothing here throws but `insert` of data, for want of memory for the list's item, and then nothing
/// changed.
class AxTypeIndex
{
public:
    AxTypeIndex(AxList& list, AxTypeOf ofData) : myList(list), myTypeOf(ofData) {}

    using Found = AxTypeTable::Found;
    Found bestMatch(AxObjectType const& type);
    /// The same by the walk itself, for lists whose types may have been changed without a word.
    AxListItem* walk(AxObjectType const& type) const;
    /// The first item of exactly this type, null when there is none.
    Found firstOf(AxObjectType const& type);
    /// Puts `data` in front of the first item above its type, or at the end when the last item is below it. False when
    /// neither is to be had, because an item of equal type is the last.
    bool insert(void* data, AxObjectType const& type);
    /// The same for data that hold their item, which `remove` leaves to them.
    bool link(AxListItem& item, AxObjectType const& type);
    /// The same for many in a row: the item stands in the list when the order is asked for, by `arrange` or by any
    /// other operation but this, `count` and `firstOf`.
    bool linkLater(AxListItem& item, AxObjectType const& type);
    void expect(std::size_t count);
    std::size_t count() const { return static_cast<std::size_t>(myList.count()) + myUnplaced.size(); }
    void arrange()
    {
        if (!myUnplaced.empty())
        {
            placeAll();
        }
    }
    void remove(AxListItem* item);
    void unlink(AxListItem& item);
    /// The list is empty now, and what was linked later is gone.
    void start();
    /// A type was changed behind the index.
    void invalidate()
    {
        arrange();
        myIsKnown = false;
    }

    /// The nearest item in front of `item` whose type it fits or whose super type is the catch-all mark.
    AxListItem* ancestorOf(AxListItem const* item);

private:
    /// In front of an item, at the end, or nowhere.
    struct Place
    {
        bool isThere;
        AxListItem* before;
    };

    static Found found(AxListItem* item) { return {item, item != nullptr ? item->data() : nullptr}; }
    AxObjectType const& typeOf(AxListItem const* item) const { return *myTypeOf(item->data()); }
    AxObjectType const& greatest() const { return myUnplaced.empty() ? typeOf(myList.last()) : myGreatest; }
    Place placeOf(AxObjectType const& type);
    AxListItem* firstAbove(AxObjectType const& type);
    void placeAll();
    bool isSorted();
    bool scanIsSorted() const;
    void forget();
    void forgetTables();
    // These answer false, and what they were to fill is not there, when there is no memory for it.
    bool hasTables() { return myHasTables || buildTables(); }
    bool buildTables();
    bool hasOrder() { return myHasOrder || buildOrder(); }
    bool buildOrder();
    bool enterInTables(AxListItem* item, AxObjectType const& type);
    bool enterInOrder(AxListItem* item, AxObjectType const& type);

    AxTypeTable& tableFor(unsigned shape) { return shape == 0 ? myExact : myPatterns; }
    void countShape(unsigned shape, int change);
    void enter(AxListItem* item, AxObjectType const& type);
    bool leave(AxListItem const* item);
    Found bestOfUnusual(AxObjectType const& type);
    Found greatestBelow(AxObjectType const& type);
    AxListItem* lastCatchAllBefore(AxObjectType const& type);

    AxList& myList;
    AxTypeOf myTypeOf;
    AxTypeTable myExact;
    AxTypeTable myPatterns;
    std::vector<std::uint8_t> myShapes; // of the patterns, ascending
    std::array<std::uint32_t, 256> myShapeCounts{};
    std::map<AxObjectType, AxListItem*> myOrder; // the first item of each type
    std::vector<AxListItem*> myUnplaced;         // in the tables only, as they came
    AxObjectType myGreatest;                     // while there are such
    std::uint32_t myChangeCount = 0;             // of the list as the index knows it
    bool myIsKnown = true;
    bool myIsSorted = true;
    bool myHasTables = false;
    bool myHasOrder = false;
};
