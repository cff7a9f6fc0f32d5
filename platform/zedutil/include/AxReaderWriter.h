#pragma once

#include "AxEnvironment.h"
#include "AxExport.h"
#include "AxFilename.h"
#include "AxKeyword.h"
#include "AxReaderWriterRegistry.h"
#include "AxString.h"
#include "AxSymbolString.h"
#include "AxlObj.h"

#include <cstdint>
#include <functional>
#include <list>
#include <string>
#include <utility>
#include <vector>

class AxReaderWriterFactory;
class AxRwProperty;
class AxRwVariableBindings;
struct AxKeptItem;
struct AxReadFrame;
class AxTreeForm;

/// Directories searched, in order, for files named inside a text.
using AxFilenameList = std::list<AxFilename>;
/// Variable sets, the first that knows a name wins.
using AxBindingsList = std::list<AxRwVariableBindings const*>;
/// Unbound variables: name and the text of the value that stands in for it.
using AxUnboundVariableList = std::list<std::pair<AxString, AxString>>;

/// A self-describing object: a name, a value or bound members, and the means to read, write, copy and compare them.
///
/// A record binds each of its members to a keyword in its registry; everything generic walks that registry. A value
/// has no members and overrides the two data hooks. Members that stand in a record's class are bound by an
/// `AxKeyword`, others (made at run time) by name.
///
/// The value-specified flag tells a value that was read or set from one that is a default: only specified values are
/// written, unless all are asked for.
class ZEDOBJPARAM_API AxReaderWriter
{
public:
    AxReaderWriter(AxSymbolString name, AxReaderWriterRegistry* registry, bool specified = false);
    AxReaderWriter(AxString const& name, AxReaderWriterRegistry* registry, bool specified = false);
    AxReaderWriter(char const* name, AxReaderWriterRegistry* registry, bool specified = false);
    /// Binds a data member of the class that owns `registry`. The texts of `keyword` must live for ever.
    AxReaderWriter(AxKeyword const& keyword, AxReaderWriterRegistry* registry, bool specified = false)
        : AxReaderWriter(keyword, registry, specified ? Specified : Flag{})
    {
    }
    /// Takes the flag, the variable reference and the kept items of `other`; bound members are the caller's business.
    AxReaderWriter(AxSymbolString name, AxReaderWriter const& other, AxReaderWriterRegistry* registry);
    AxReaderWriter(AxReaderWriter const& other);

    // ---- The order of the virtual operations is part of the interface. ----
    virtual ~AxReaderWriter();
    /// Adds this object to a tree below `parent`: a scalar as an attribute, anything else as a child.
    virtual void putSelf(AxEnvironmentPtr const& env, AxEnvValuePtr const& parent) const;
    /// Appends "(name ...)". `all` writes unspecified members too; `file` is the file being written, or null.
    virtual void putSelf(std::string& out, int indent, bool all, AxFilename const& file);
    virtual void postPutSelf();
    virtual void prePutSelf();
    virtual void getSelf(AxEnvironmentPtr const& env, AxEnvValuePtr const& node, AxFilenameList const& files,
                         AxBindingsList const& bindings);
    /// Reads "(name item...)". Items that cannot be read are reported and kept; the rest is read.
    virtual void getSelf(AxlObjPtr const& expression, AxFilenameList const& files, AxBindingsList const& bindings);
    virtual void postGetSelf();
    virtual void preGetSelf();
    /// Writes on a line of its own what is due: a newline, the indentation, and the object.
    virtual void writeSelf(std::string& out, int indent, bool all, AxFilename const& file);
    virtual void putData(AxEnvironmentPtr const& env, AxEnvValuePtr const& node) const;
    virtual void putData(std::string& out, int indent);
    virtual void getData(AxEnvironmentPtr const& env, AxEnvValuePtr const& node, AxFilenameList const& files,
                         AxBindingsList const& bindings);
    /// Consumes this object's own leading items and answers those still to be matched against the registry.
    virtual AxlObjPtr getData(AxlObjPtr const& items, AxFilenameList const& files, AxBindingsList const& bindings);
    virtual AxSymbolString name() const;
    /// Sets the flag here and, unless `ownOnly`, on every registered member below.
    virtual void setValueSpecified(bool specified, bool ownOnly);
    virtual bool valueSpecified() const;
    virtual void addAlias(AxString const& alias);
    virtual void addAlias(AxSymbolString alias);
    virtual bool hasAlias(AxSymbolString alias) const;
    virtual std::vector<AxSymbolString> const& aliases() const;
    /// A hint to editors; reading and setters still work.
    virtual void setReadonly(bool readonly);
    /// Back to the default: the default reader-writer's value, else the initial one; the flag is cleared.
    virtual void reset();
    virtual bool isVariableReference() const;
    virtual void setIsVariableReference(bool isReference);
    virtual void clearAllVariableReferenceFlags();
    virtual int alignment() const;
    virtual AxSymbolString variableName() const;
    virtual void setVariableName(AxSymbolString name);
    virtual AxReaderWriter* defaultRWValue();
    virtual AxReaderWriter const* defaultRWValue() const;
    /// Takes ownership of `value`.
    virtual void setDefaultRWValue(AxReaderWriter* value);
    /// Reads the default of a "($name default...)" item; false when the item has another shape.
    virtual bool checkAndSetDefaultRWValue(AxlObjPtr const& item, AxFilenameList const& files,
                                           AxBindingsList const& bindings);
    virtual bool toXml(AxFilename const& file) const;
    virtual AxString toXml() const;
    virtual bool fromXml(AxString const& text);
    virtual bool fromXmlFile(AxFilename const& file);
    virtual void putVariableReference(AxEnvironmentPtr const& env, AxEnvValuePtr const& node) const;
    /// Offered an item that no member takes; true when it was consumed, else the item is kept and reported.
    virtual bool unrecognizedItem(AxEnvironmentPtr const& env, AxEnvValuePtr const& node, AxFilenameList const& files,
                                  AxBindingsList const& bindings);
    virtual bool getVariableReference(AxEnvironmentPtr const& env, AxEnvValuePtr const& node);
    virtual bool variableIsBound() const;
    virtual void unbindVariable();
    /// A registered member keeps its place in its registry; another of that name leaves.
    virtual void setName(AxString const& name);
    virtual char const* readerWriterType() const;
    virtual char const* xmlType() const;
    virtual AxString prettyPrint() const;
    /// Reads every reference below that one of the sets knows, the first set first.
    virtual void bindVariables(AxBindingsList const& bindings);
    virtual AxUnboundVariableList unboundVariables() const;
    virtual bool hasChild(AxReaderWriter const* child) const;
    virtual bool hasVariableReference() const;
    /// As `bindVariables`, for references that are not bound yet.
    virtual void bindLocalVariables(AxBindingsList const& bindings);
    virtual AxRwProperty const* property() const;
    virtual AxRwProperty* property();
    /// The latest stamp of this object, its members and elements; stamps come from `setTimeSource`.
    virtual double recordUpdateTime() const;
    virtual bool wasUpdatedSince(double time) const;

protected:
    /// Takes the value of `source` as that of the variable this object refers to.
    virtual bool bindToRwAsVariable(AxReaderWriter const* source);
    // ---- End of the virtual operations. ----

public:
    /// Every registered member takes the value and flag of its namesake; members without one stay.
    AxReaderWriter& operator=(AxReaderWriter const& other);
    /// Registered members compared by keyword, then alias; names, flags and references take no part.
    bool operator==(AxReaderWriter const& other) const;
    bool operator!=(AxReaderWriter const& other) const { return !(*this == other); }

    /// True when the last reading met no list at all, a limit, or a text that ended inside this object.
    bool invalid() const { return flag(Invalid); }
    void setInvalid(bool invalid) { setFlag(Invalid, invalid); }
    bool readonly() const { return flag(Readonly); }
    /// Whether this is one value on the line of its keyword, rather than a record or list.
    bool isValue() const { return flag(Value); }
    /// True for a value that was taken from a more general record rather than read.
    bool inherited() const { return flag(Inherited); }
    void setInherited(bool inherited) { setFlag(Inherited, inherited); }

    /// This object's members. A value has none until one is bound to it.
    AxReaderWriterRegistry* registry() { return &rest().registry; }
    /// Null for an object that never had members.
    AxReaderWriterRegistry const* registryIfAny() const { return hasRest() ? &restOrNull()->registry : nullptr; }
    AxReaderWriterRegistry* registryIfAny() { return hasRest() ? &restOrNull()->registry : nullptr; }
    /// The registry that lists this object, null when none does.
    AxReaderWriterRegistry* parentRegistry() const;
    /// The unit, help and range this member was bound with; null when bound by a bare keyword.
    AxKeyword const* description() const;

    /// Whether plain writing writes this object: specified, referring, holding kept items, or a member is due.
    bool isDue() const;
    /// Items of the text that no member could take, as written back, each with the keyword that it followed.
    std::vector<std::pair<AxSymbolString, std::string>> keptItems() const;
    /// Keeps `text` to be written after the member `after` (empty: before the first).
    void keepItem(AxSymbolString after, std::string text);
    void dropKeptItems();

    void addAlias(char const* alias) { addAlias(AxSymbolString(alias)); }
    /// Assigns every registered member and then what `operator=` carries besides; for copies made by a class.
    void assign(AxReaderWriter const& other);

    static AxReaderWriterFactory* factory();
    /// Replaces the process-wide factory, which stays the host's; null goes back to the built-in one.
    static void setFactory(AxReaderWriterFactory* factory);
    static void putIndent(std::string& out, int level);
    static AxString getAttribute(AxEnvironmentPtr const& env, AxString const& name, AxEnvValuePtr const& node);
    /// The directory that names of old databases are relative to; the current one at first use unless set.
    static AxFilename appPath();
    static void setAppPath(AxFilename const& path);
    static AxBindingsList const& nullVariableReference();
    static AxFilenameList const& nullFilenames();

    using PrePutSelfCallback = void (*)(AxReaderWriter* rw, std::string& out, void* context);
    /// Called for everything that is written, just before it is; one at a time, null removes it.
    static void setPrePutSelfCallback(PrePutSelfCallback callback, void* context);
    /// Where time stamps come from; empty: a counter that grows by one with each reading or assignment. What was
    /// stamped before keeps its stamp. Where the source throws, the counter serves.
    static void setTimeSource(std::function<double()> source);

    /// Reads the first expression of a text that stands alone, named `sourceName` in messages.
    bool readText(std::string_view text, AxFilename const& sourceName, AxFilenameList const& files,
                  AxBindingsList const& bindings);
    /// The object written alone, ending in a newline.
    std::string writtenText(bool all = false) const;

protected:
    enum Flag : std::uint16_t
    {
        Specified = 1,
        Readonly = 2,
        VariableReference = 4,
        VariableBound = 8,
        Inherited = 16,
        Invalid = 32,
        Rejected = 64,     ///< the value just read was refused; the reader above keeps the item
        Scalar = 128,      ///< written as an attribute in a tree
        Value = 256,       ///< no members: one value, written on the line of its keyword
        List = 512,        ///< an AxRwList
        KeepsItems = 1024, ///< kept items are present
        FileBacked = 2048, ///< content of a file member that names a file: never written inline
        RestBehind = 4096, ///< an AxRecord, whose `Rest` stands right behind this part of it
        RestApart = 8192   ///< another object that has a `Rest`
    };

    /// For kinds that begin with other flags.
    AxReaderWriter(AxKeyword const& keyword, AxReaderWriterRegistry* registry, Flag flags);
    /// The same, and remembers the value of up to eight bytes that `reset` goes back to.
    AxReaderWriter(AxKeyword const& keyword, AxReaderWriterRegistry* registry, Flag flags, std::uint64_t initial);
    /// For those that see to their name themselves.
    explicit AxReaderWriter(Flag flags) : myFlags(flags) {}

    bool flag(Flag f) const { return (myFlags & f) != 0; }
    void setFlag(Flag f, bool on) { myFlags = static_cast<std::uint16_t>(on ? (myFlags | f) : (myFlags & ~f)); }

    /// What a typed setter does: the value, and the mark that it was given.
    template <class Member, class Value>
    static void assignSpecified(Member& member, Value const& value)
    {
        member = value;
        member.setValueSpecified(true, false);
    }
    /// To be called by every assignment of a plain value: drops a variable reference and renews the stamp.
    void valueAssigned()
    {
        if (myFlags & (VariableReference | Inherited))
        {
            dropReference();
        }
        stamp();
    }
    void stamp()
    {
        if (ourHasTimeSource || (myFlags & RestApart) != 0)
        {
            stampOtherwise();
            return;
        }
        myStampOrNumber = ++ourStamp;
    }
    /// Takes over the state of a member of the same kind when neither has any but flags; else false.
    bool carryPlainState(AxReaderWriter const& other)
    {
        constexpr std::uint16_t special = VariableReference | KeepsItems;
        constexpr std::uint16_t carried = Specified | Inherited;
        if ((myFlags | other.myFlags) & special)
        {
            return false;
        }
        myFlags = static_cast<std::uint16_t>((myFlags & ~carried) | (other.myFlags & carried));
        stamp();
        return true;
    }
    /// To be called when a value was taken from text.
    void valueRead()
    {
        if (myFlags & (VariableReference | Inherited))
        {
            dropReference();
        }
        myFlags |= Specified;
        stamp();
    }
    /// Refuses the value being read: reports what was expected at `cell`, keeps value and flag.
    void reject(AxlObj const* cell, std::string const& expected);
    /// Keeps a reference as it stood in the text; it is written instead of the value until a plain value is assigned.
    void keepReference(AxSymbolString variable, std::string written, bool bound);
    std::string const& referenceText() const;
    /// Reads the value of the reference that is kept; true when it is bound to one now.
    bool readBinding(AxFilenameList const& files, AxBindingsList const& bindings);
    /// Takes over what an assignment between two members of one kind carries besides the value.
    void carryState(AxReaderWriter const& other);
    /// Remembers the value that `reset` goes back to.
    void noteInitialValue(void const* bytes, std::size_t size);
    bool initialValue(void* bytes, std::size_t size) const;
    /// Matches each item with a member by keyword or alias; used after the data hook.
    void readItems(AxlObj const* items, AxFilenameList const& files, AxBindingsList const& bindings);
    void readItem(AxlObj const* item, AxReadFrame& frame, AxFilenameList const& files, AxBindingsList const& bindings);
    /// What is kept in front of all members is written behind that one instead.
    void keepBehind(AxSymbolString keyword);
    /// Writes the due members, with the kept items in their places.
    void writeMembers(std::string& out, int indent, bool all, AxFilename const& file);
    /// Writes "(head ...)" with the callbacks and the data hook; `putSelf` is this with the object's name.
    void writeAs(AxSymbolString head, std::string& out, int indent, bool all, AxFilename const& file);

private:
    friend class AxReaderWriterRegistry;
    friend class AxReaderWriterFactory;
    friend class AxReaderWriterFile;
    friend class AxRecord;
    friend class AxRwList;
    friend class AxTextReader;
    friend class AxXmlReader;
    friend class AxPlainValue;
    friend struct ::AxReadFrame;
    friend class ::AxTreeForm;

    struct Rare;
    struct RestTable;
    /// What a record has and a value mostly has not: a member takes its name from the table of its owner's class.
    struct Rest
    {
        Rest(AxReaderWriter* owner, AxSymbolString itsName);
        ~Rest();
        AxSymbolString name;
        AxReaderWriterRegistry registry;
        AxReaderWriterRegistry* parent = nullptr;
        std::unique_ptr<Rare> rare;
        std::uint32_t stamp = 0; // of an object whose `Rest` stands apart
    };

    bool hasRest() const { return (myFlags & (RestBehind | RestApart)) != 0; }
    Rest* restOrNull() const
    {
        if ((myFlags & RestBehind) != 0)
        {
            return reinterpret_cast<Rest*>(reinterpret_cast<std::uintptr_t>(this) + sizeof(AxReaderWriter));
        }
        return (myFlags & RestApart) != 0 ? ourRests[myStampOrNumber] : nullptr;
    }
    Rest& rest()
    {
        Rest* const mine = restOrNull();
        return mine ? *mine : makeRest();
    }
    Rest& makeRest();
    /// Deletes the `Rest` that stands apart.
    void dropRest();
    std::uint32_t lastStamp() const { return (myFlags & RestApart) != 0 ? restOrNull()->stamp : myStampOrNumber; }
    std::uint32_t latestStamp() const;
    void leaveOtherwise();
    /// Leaves the registry that this was entered in by pointer; there must be a `Rest`.
    void leaveParent();
    Rare& rare();
    Rare const* rareOrNull() const;
    /// The registry of the object that this is a data member of.
    AxReaderWriterRegistry& ownersRegistry() const;
    void dropReference();
    void enter(AxReaderWriterRegistry* registry);
    void adoptKeptItems(AxReaderWriter const& other);
    /// Whether the kept item is still written in place of its member.
    bool standsFor(AxKeptItem const& item) const;
    void writeKept(std::string& out, int indent, AxSymbolString after) const;
    void writeMember(AxReaderWriter& member, AxSymbolString keyword, std::string& out, int indent, bool all,
                     AxFilename const& file);
    void writeElements(std::string& out, int indent, bool all, AxFilename const& file);
    /// Reads what follows the name: by the data hook, then member by member or element by element.
    void readBody(AxlObj const* items, AxFilenameList const& files, AxBindingsList const& bindings);
    bool readReference(AxlObj const* items, AxFilenameList const& files, AxBindingsList const& bindings);
    void bindAll(AxBindingsList const& bindings, bool onlyUnbound);
    void takeHead(AxlObj const* head);
    void reportUnknown(AxlObj const* item, std::string_view word);

    void stampOtherwise();

    static std::uint32_t ourStamp;
    static bool ourHasTimeSource;
    static Rest** ourRests; // those that stand apart, by their numbers

    std::uint16_t myPlace = 0; // in its owner, in units of eight bytes; 0 when not bound as a data member
    std::uint16_t myFlags = 0;
    std::uint32_t myStampOrNumber = 0; // the number of the `Rest` that stands apart
};
