#pragma once

#include "AxExport.h"
#include "AxKeyword.h"
#include "AxSymbolString.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <typeinfo>
#include <vector>

class AxReaderWriter;
struct AxRegistryShape;
struct AxRegistryTable;

/// One line of a registry: a keyword, the member bound to it, and how the generic operations treat it.
struct AxRegistryEntry
{
    AxSymbolString keyword;
    AxReaderWriter* member = nullptr;
    bool content = false;                   ///< the object that a file member fills; reached through that member only
    bool compared = true;                   ///< takes part in equality and in the number of members compared
    AxKeyword const* description = nullptr; ///< unit, help and range; null when none were told
    std::type_info const* declaringClass = nullptr; ///< null for a member that was made at run time
};

/// The ordered members of one record, in the order in which they were bound.
///
/// All objects of one class bind the same keywords at the same distances from the object, so they share one run of
/// shapes and a registry holds little more than a pointer into it. Members that were bound by pointer (those made at
/// run time, and those of classes that bind by bare keyword) stand in a list of the object's own after the shared ones.
class ZEDOBJPARAM_API AxReaderWriterRegistry
{
public:
    /// A registry without an owner, for members that stand alone.
    AxReaderWriterRegistry();
    explicit AxReaderWriterRegistry(AxReaderWriter* owner);
    AxReaderWriterRegistry(AxReaderWriterRegistry const&) = delete;
    AxReaderWriterRegistry& operator=(AxReaderWriterRegistry const&) = delete;
    /// Members that outlive the registry are left in none; members that it created are deleted.
    ~AxReaderWriterRegistry();

    /// Appends `member` under `keyword`, taking it out of the registry that it stands in. A keyword that is present
    /// supersedes: the older member leaves.
    void addEntry(AxSymbolString keyword, AxReaderWriter* member);
    /// Appends the object that a file member fills. Look-up, counting and writing pass it over.
    void addContentEntry(AxSymbolString keyword, AxReaderWriter* member);
    bool removeEntry(AxReaderWriter const* member);
    bool removeEntry(AxSymbolString keyword);

    /// The member bound to `keyword`, null when there is none. The empty keyword finds the unnamed member.
    AxReaderWriter* lookup(AxSymbolString keyword) const;
    /// The first member that has `alias` among its aliases, null when there is none.
    AxReaderWriter* lookupByAlias(AxSymbolString alias) const;
    /// By keyword, then by alias.
    AxReaderWriter* find(AxSymbolString keyword) const;

    /// Makes a member of the named reader/writer type, owned by this registry; null when the type is unknown.
    AxReaderWriter* createMember(AxString const& type, AxSymbolString keyword);

    /// Marks the registry complete. Later bindings stay legal.
    void setLocalData() { myLocalData = true; }
    bool localData() const { return myLocalData; }

    /// All entries, content included.
    std::size_t size() const;
    /// Members that count: every entry but contents.
    int count() const;
    /// Members that equality looks at.
    int comparedCount() const;
    AxRegistryEntry entry(std::size_t index) const;
    /// Takes `member` out of equality.
    void setCompared(AxReaderWriter const* member, bool compared);

    /// The unit, help and range that `member` was bound with; null for one bound by a bare keyword.
    AxKeyword const* description(AxReaderWriter const* member) const;
    /// The class that declares `member`; null for one made at run time.
    std::type_info const* declaringClass(AxReaderWriter const* member) const;
    /// Tells both for a member that was bound by a bare keyword. `description` is kept by pointer.
    void describe(AxReaderWriter const* member, AxKeyword const& description, std::type_info const& declaringClass);

    AxReaderWriter* owner() const { return myOwner; }

    /// Same number of compared members, and each equal to its namesake on the other side.
    bool operator==(AxReaderWriterRegistry const& other) const;
    bool operator!=(AxReaderWriterRegistry const& other) const { return !(*this == other); }

private:
    friend class AxReaderWriter;
    friend class AxRecord;
    friend class AxTextReader;
    friend class AxXmlReader;

    struct Own;

    void bind(AxReaderWriter& member, AxKeyword const& keyword);
    void bindTo(AxRegistryShape& shape, AxReaderWriter& member);
    void bindOtherwise(AxReaderWriter& member, AxKeyword const& keyword, std::size_t distance);
    bool leave(AxReaderWriter const& member);
    void removeMember(AxReaderWriter const& member);
    void leaveShape();
    std::size_t assignShared(AxReaderWriterRegistry const& other);
    AxRegistryTable const& table() const;
    /// Of the member bound there.
    AxSymbolString nameAt(std::uint16_t place) const;
    AxRegistryShape const* shapeOf(AxReaderWriter const* member) const;
    AxRegistryEntry entryOf(AxRegistryShape const& shape) const;
    AxRegistryEntry entryOf(AxReaderWriter const* member) const;
    AxReaderWriter* at(std::size_t distance) const;
    AxRegistryEntry* ownEntry(AxReaderWriter const* member) const;
    Own& own();

    AxReaderWriter* myOwner = nullptr;
    AxRegistryShape* myShape;
    std::unique_ptr<Own> myOwn;
    bool myLocalData = false;
};
