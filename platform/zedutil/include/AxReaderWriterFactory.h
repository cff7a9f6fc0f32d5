#pragma once

#include "AxReaderWriter.h"

#include <map>
#include <typeinfo>

class AxRwList;
class AxTextReader;

/// How one class of reader/writers is made, copied, compared and read straight from text. A class whose values all
/// stand in its registry needs none: the walk over the registry serves it.
struct AxTypeOps
{
    AxReaderWriter* (*create)(AxSymbolString name, AxReaderWriterRegistry* registry) = nullptr;
    void (*copy)(AxReaderWriter& to, AxReaderWriter const& from) = nullptr;
    bool (*equal)(AxReaderWriter const& a, AxReaderWriter const& b) = nullptr;

    // The following let a class that overrides a hook of cells still be read without cells. They serve the class and
    // those derived ones that do not override the hook again; `create` must be there to compare the hooks with.

    /// Takes an item that no member takes, the `index`-th of the record; may add to the sets of variables that the
    /// items after it are read with. False leaves the item to the registry.
    bool (*ownItem)(AxReaderWriter& record, AxlObj const* item, std::size_t index, AxBindingsList& bindings) = nullptr;
    /// Head of a first item that `ownItem` would take without looking at it when it is `(leadHead "word")`; may be
    /// null.
    char const* leadHead = nullptr;
    /// What an overridden `getSelf` does after the items were read.
    void (*afterItems)(AxReaderWriter& record, AxFilenameList const& files, AxBindingsList const& bindings) = nullptr;
    /// These serve several classes, each a type of its own: objects of two of them are not copied into each other.
    bool isForEachClass = false;
    /// Reads the list's next element, at its opening parenthesis; false, and nothing taken, when that needs cells.
    bool (*readElement)(AxRwList& list, AxTextReader& reader, AxFilenameList const& files,
                        AxBindingsList const& bindings) = nullptr;

    /// The operations of `T` by its own `operator=` and `equals`.
    template <class T>
    static constexpr AxTypeOps of()
    {
        AxTypeOps ops;
        ops.copy = [](AxReaderWriter& to, AxReaderWriter const& from)
        { static_cast<T&>(to) = static_cast<T const&>(from); };
        ops.equal = [](AxReaderWriter const& a, AxReaderWriter const& b)
        { return static_cast<T const&>(a).equals(static_cast<T const&>(b)); };
        return ops;
    }
    template <class T>
    static constexpr AxTypeOps withCreator()
    {
        AxTypeOps ops = of<T>();
        ops.create = [](AxSymbolString name, AxReaderWriterRegistry* registry) -> AxReaderWriter*
        { return new T(name, registry); };
        return ops;
    }
};

/// Enters the operations of a class that keeps values outside its registry (cached values, elements, plain fields).
/// One object of it stands at namespace scope in the source file of the class:
/// `static AxTypeEntry<AxSimSector> const entry;`. Derived classes without an entry use that of their base.
class ZEDOBJPARAM_API AxTypeEntryBase
{
protected:
    AxTypeEntryBase(std::type_info const& type, AxTypeOps const& ops);
};

template <class T>
class AxTypeEntry : public AxTypeEntryBase
{
public:
    AxTypeEntry() : AxTypeEntryBase(typeid(T), AxTypeOps::of<T>()) {}
    explicit AxTypeEntry(AxTypeOps const& ops) : AxTypeEntryBase(typeid(T), ops) {}
};

/// How objects of one class are read, found out when the first of them is met.
struct AxTypeInfo
{
    enum class Reading
    {
        Cells,
        Real,
        Int,
        Unsigned,
        Boolean,
        String,
        Vector,
        ObjectType,
        Record,
        List
    };
    AxTypeOps const* ops = nullptr;
    Reading reading = Reading::Cells;
    bool readsTrees = false;   ///< a record that overrides the data hook of trees
    bool takesUnknown = false; ///< overrides the hook for unknown items
};

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"

/// Creates, clones, copies and compares reader/writers by their type names.
///
/// There is no virtual destructor: a factory is never deleted through this class and lives as long as the process.
class ZEDOBJPARAM_API AxReaderWriterFactory
{
public:
    /// `withBuiltIns` registers the member kinds of the framework.
    explicit AxReaderWriterFactory(bool withBuiltIns = true);
    AxReaderWriterFactory(AxReaderWriterFactory const&) = default;
    AxReaderWriterFactory& operator=(AxReaderWriterFactory const&) = default;

    // ---- The order of the virtual operations is part of the interface. ----
    virtual std::list<AxString> xmlTypes() const;
    /// The reader/writer type of an XML type, null text when there is none.
    virtual AxString mapXmlToRwType(AxString const& xmlType) const;
    virtual AxString mapRwToXmlType(AxString const& rwType) const;
    /// A new object of the named type, or null.
    virtual AxReaderWriter* createItem(AxString const& type, AxString const& name, AxReaderWriterRegistry* registry);
    /// False when the two are of different types.
    virtual bool copyReaderWriter(AxReaderWriter const* source, AxReaderWriter* destination) const;
    /// Equality as records compare their members: by the type's own function, else members, elements and own text.
    virtual bool compareReaderWriter(AxReaderWriter const* a, AxReaderWriter const* b) const;
    /// A copy made as the named type under `rw`'s name, or null when the type is unknown.
    virtual AxReaderWriter* cloneReaderWriter(AxString const& type, AxReaderWriter const* rw,
                                              AxReaderWriterRegistry* registry) const;
    /// The bytes that `encode` writes for `rw`.
    virtual int getSize(AxReaderWriter const* rw) const;
    /// Writes the object's text and its length; answers the end of what was written.
    virtual char* encode(AxReaderWriter const* rw, char* buffer) const;
    /// Reads what `encode` wrote; answers the end of what was read.
    virtual char const* decode(AxReaderWriter* rw, char const* buffer);

protected:
    virtual void mapRwToXml(AxString const& rwType, AxString const& xmlType);
    // ---- End of the virtual operations. ----

public:
    /// Registers a type name; a second registration replaces the first.
    void addType(AxString const& type, AxTypeOps const& ops);
    bool knowsType(AxString const& type) const;
    std::list<AxString> typeNames() const;

    /// What the library makes its factory with until a host sets another.
    using Maker = AxReaderWriterFactory* (*)();
    static void setDefaultMaker(Maker maker);
    static AxReaderWriterFactory* makeDefault();

    /// What `copyReaderWriter` and `compareReaderWriter` of this class do, for walks over objects of one class.
    static bool copyByType(AxReaderWriter& to, AxReaderWriter const& from);
    static bool equalByType(AxReaderWriter const& a, AxReaderWriter const& b);
    /// Whether the factory in use compares so too; false for one of a host's that compares in its own way.
    static bool comparesByType();
    static AxTypeInfo const& typeInfo(AxReaderWriter const& rw);
    /// The table of virtual functions of the object's class, by which walks know objects of one class.
    static void const* functionsOf(AxReaderWriter const& rw) { return *reinterpret_cast<void const* const*>(&rw); }

private:
    AxTypeOps const* find(AxString const& type) const;

    std::map<AxString, AxTypeOps> myTypes;
    std::list<AxString> myOrder;             // type names in order of registration
    std::map<AxString, AxString> myXmlTypes; // reader/writer type to XML type
};

#pragma GCC diagnostic pop
