#pragma once

#include "AxModelSetEntry.h"
#include "AxRwInt.h"
#include "AxRwList.h"
#include "AxTypedListIterator.h"

#include <map>
#include <memory>
#include <set>
#include <unordered_map>

class AxSimulationObjectGroupModelSetEntry;

/// The catalogue of what users may create. Owns its entries, in file order.
class ZEDOBJPARAM_API AxModelSet : public AxRwList
{
public:
    AxModelSet(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxModelSet(AxModelSet const& other);
    ~AxModelSet() override;
    AxModelSet& operator=(AxModelSet const& other);
    static AxModelSet* create(AxSymbolString name, AxReaderWriterRegistry* registry);

    /// Version of the model set file.
    int version() const { return myVersion; }
    AxString const& comment() const { return myComment.value(); }
    void setComment(AxString const& comment) { assignSpecified(myComment, comment); }

    // ---- Entries ----
    AxTypedListIterator<AxModelSetEntry> begin() const { return AxTypedListIterator<AxModelSetEntry>(first()); }
    AxTypedListIterator<AxModelSetEntry> end() const { return AxTypedListIterator<AxModelSetEntry>(nullptr); }

    /// Takes in the entry, or a copy, and gives it a unique identifier if it has none. Of a type that is present the
    /// entry is not added: the present one takes over its values, but not an empty identifier. A group without a type
    /// gets the next free one first. Answers the set's entry, null after a report when there is no
    /// memory; an entry that is not the one answered stays the caller's.
    AxModelSetEntry* addModel(AxModelSetEntry* entry, bool copy);
    /// Deletes the entry that `find` answers; false when there is none.
    bool removeModel(AxObjectType const& type);
    bool removeModel(AxModelSetEntry* entry);
    /// Deletes all entries.
    void clear() { removeAndDeleteAll(); }
    /// Appends copies of all entries, whatever their types.
    void copyList(AxModelSet const& other);

    // ---- Look-ups. Null or empty when there is none. ----
    /// The first entry of exactly this type.
    AxModelSetEntry* find(AxObjectType const& type) const;
    /// Of the entries whose types are patterns for `type`, the one that has the most of the eight fields in common with
    /// it; of equals the last.
    AxModelSetEntry* findMatchingPattern(AxObjectType const& type) const;
    AxModelSetEntry* findByLabel(AxString const& label) const;
    AxModelSetEntry* findByUniqueID(AxString const& id) const;
    /// The first group of that label.
    AxSimulationObjectGroupModelSetEntry* findSimulationObjectGroup(AxString const& name) const;
    /// The type of the first entry of that label; the null type when there is none.
    AxObjectType objectTypeFor(AxString const& label) const;
    /// Appends the labels of the entries whose types fit the pattern `type`.
    void entitiesForObjectType(AxObjectType const& type, std::list<AxString>& out) const;

    /// What an entry of this label is known by in scenarios, unless another one is already.
    static AxString createUniqueID(AxString const& label);
    static AxString createUniqueID(AxModelSetEntry const& entry) { return createUniqueID(entry.label()); }

    // ---- Categories on palettes: those of all entries that `addModel` took in. ----
    std::set<AxString> categories() const;
    std::set<AxString> const& categoriesForPalette(AxString const& palette) const;
    void addCategoriesFrom(AxModelSetEntry const& entry);

    /// A type that no group has had yet: super type 5, counted up from 0:0:0:0:0:0:1.
    AxObjectType const& nextAvailableSimulationObjectGroupObjectType() const { return myNextGroupType; }
    /// Counts on behind `used`.
    void updateNextSimulationObjectGroupObjectType(AxObjectType const& used);

    // ---- Files. What is read is added by `addModel`. False after a report; what could be read is there. ----
    bool load(AxFilename const& file);
    bool save(AxFilename const& file);
    /// The entity and group files of a directory, not of those below it; or such a file alone, as with the next two.
    bool loadFromDataFiles(AxFilename const& directory);
    /// An entry for each object element of the entity files (.entity), in the order of the files' names. Elements
    /// without an object type are told and left out.
    bool loadEntityFiles(AxFilename const& directory);
    /// The group files (.sog), in the order of their names.
    bool loadSimulationObjectGroupFiles(AxFilename const& directory);

    /// Ignores anything but entries.
    void addToStart(AxReaderWriter* rw) override;
    void addToEnd(AxReaderWriter* rw) override;
    /// Takes an entry out, which becomes the caller's.
    void remove(AxReaderWriter* rw, AxListItem* item) override;
    void removeAndDeleteAll() override;
    using AxRwList::getData;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;
    char const* readerWriterType() const override { return "AxModelSet"; }

private:
    class Loading;

    AxModelSetEntry* takeModel(AxModelSetEntry* entry, bool copy);
    /// Adds what was read. Models whose types could not be read are not the same model: all of them stay.
    void adopt(std::unique_ptr<AxModelSetEntry> entry);
    void takeIn(AxModelSet& read);
    void refreshIndex() const;
    void addToIndex(AxListItem* item) const;
    AxListItem* knownItemOf(AxModelSetEntry const* entry) const;
    void refreshCategories() const;
    void mergeCategories(AxModelSetEntry const& entry) const;
    AxString unusedID(AxString const& base) const;
    bool addEntities(std::vector<AxFilename> const& files);
    bool addEntitiesOf(AxFilename const& file);
    bool addGroups(std::vector<AxFilename> const& files);

    AxRwInt myVersion{{"version", "", "Version of the file."}, 1, registry()};
    AxRwString myComment{{"comment", "", "Free text."}, registry()};
    mutable std::map<AxString, std::set<AxString>> myCategories;
    mutable bool myCategoriesAreOld = false; // an entry was removed
    AxObjectType myNextGroupType{0, 0, 0, 0, 0, 0, 1, 5};
    mutable std::unordered_map<AxObjectType, AxListItem*> myIndex; // the first entry of each type
    mutable std::uint32_t myIndexedChange = 0;
    mutable bool myHasRepeatedTypes = false;
    Loading* myLoading = nullptr; // while it runs, the index knows all types
    bool myKeepsAll = false;      // entries are taken in as they are read
};
