#pragma once

#include "AxList.h"
#include "AxReaderWriter.h"

/// An ordered list of reader/writers, owned or borrowed as the derived class says; this class borrows.
///
/// Reading replaces the elements. An item headed by a keyword of the list's own registry goes to that member, every
/// other item is one element. A list that is written writes all its elements.
class ZEDOBJPARAM_API AxRwList : public AxReaderWriter, public AxList
{
public:
    AxRwList();
    AxRwList(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxRwList(AxString const& name, AxReaderWriterRegistry* registry);
    AxRwList(char const* name, AxReaderWriterRegistry* registry);
    AxRwList(AxKeyword const& keyword, AxReaderWriterRegistry* registry);
    /// Takes flag and state of `other`; its elements are the derived class's business.
    AxRwList(AxSymbolString name, AxRwList const& other, AxReaderWriterRegistry* registry);
    AxRwList(AxRwList const& other);
    ~AxRwList() override;

    // ---- The order of the virtual operations is part of the interface. ----
    /// Appends; as every edit of the elements, it marks the list specified.
    virtual void add(AxReaderWriter* rw);
    /// Renames `rw` and appends it.
    virtual void addWithAlternateName(AxReaderWriter* rw, AxSymbolString name);
    virtual void addToStart(AxReaderWriter* rw);
    virtual void addToEnd(AxReaderWriter* rw);
    /// Unlinks one element without deleting it; `item` is its node, or null to search for it.
    virtual void remove(AxReaderWriter* rw, AxListItem* item);
    /// Takes the leading items that are the list's own and answers the rest.
    virtual AxlObjPtr getLocalData(AxlObjPtr const& items);
    virtual void addBefore(AxReaderWriter* rw, AxListItem* item);
    virtual void addBefore(AxReaderWriter* rw, AxReaderWriter* element);
    virtual void addBefore(AxReaderWriter* rw, AxSymbolString element);
    virtual void addBefore(AxReaderWriter* rw, AxString const& element);
    virtual void addAfter(AxReaderWriter* rw, AxListItem* item);
    virtual void addAfter(AxReaderWriter* rw, AxReaderWriter* element);
    virtual void addAfter(AxReaderWriter* rw, AxSymbolString element);
    virtual void addAfter(AxReaderWriter* rw, AxString const& element);
    /// Unlinks the elements without deleting them.
    virtual void removeAll();
    virtual void removeAndDeleteAll();
    /// The element tags this list accepts in a tree; empty: any.
    virtual std::vector<AxString> supportedXmlTypes() const;

    using Creator = std::function<AxReaderWriter*(AxString const& name)>;
    /// Makes one element with `creator` for each child object of `node` and lets it read itself.
    virtual void populateList(Creator const& creator, AxEnvironmentPtr const& env, AxEnvValuePtr const& node,
                              AxFilenameList const& files, AxBindingsList const& bindings);
    /// The same for children whose tag is `type`.
    virtual void populateListByType(Creator const& creator, AxEnvironmentPtr const& env, AxEnvValuePtr const& node,
                                    AxString const& type, AxFilenameList const& files, AxBindingsList const& bindings);
    // ---- End of the virtual operations. ----

    AxRwList& operator=(AxRwList const& other);
    /// Elements pairwise in order; an element is compared as a member would be.
    bool equals(AxRwList const& other) const;
    bool operator==(AxRwList const& other) const { return equals(other); }
    bool operator!=(AxRwList const& other) const { return !equals(other); }

    static AxReaderWriter* element(AxListItem const* item)
    {
        return item ? static_cast<AxReaderWriter*>(item->data()) : nullptr;
    }
    AxReaderWriter* firstElement() const { return element(first()); }

    using AxReaderWriter::getData;
    using AxReaderWriter::getSelf;
    using AxReaderWriter::putData;
    void getSelf(AxEnvironmentPtr const& env, AxEnvValuePtr const& node, AxFilenameList const& files,
                 AxBindingsList const& bindings) override;
    void getSelf(AxlObjPtr const& expression, AxFilenameList const& files, AxBindingsList const& bindings) override;
    void getData(AxEnvironmentPtr const& env, AxEnvValuePtr const& node, AxFilenameList const& files,
                 AxBindingsList const& bindings) override;
    /// Reads one element; here by the reader/writer factory, which knows the head as a type name.
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;
    void putData(AxEnvironmentPtr const& env, AxEnvValuePtr const& node) const override;
    void reset() override;
    char const* readerWriterType() const override;
    char const* xmlType() const override;

protected:
    friend class AxReaderWriter;
    friend class AxTextReader;
    friend class AxXmlReader;

    /// To be called by a derived `getData` that could make no element: the item is kept and written back.
    void keepElement(AxlObj const* item);
    /// For a derived `getData` that names elements by their heads: reports and keeps an item whose head is no name.
    /// False when it is one.
    bool keepNameless(AxlObj const* item);
    AxListItem* itemOf(AxReaderWriter const* rw) const;
    AxListItem* itemOf(AxSymbolString name) const;
    /// Replaces the elements by what `items` hold.
    void readElements(AxlObj const* items, AxFilenameList const& files, AxBindingsList const& bindings);
    /// Copies the elements of another list through the factory's `cloneReaderWriter`; derived classes bring their own.
    void copyElements(AxRwList const& other);

private:
    void readElement(AxlObj const* item, AxReadFrame& frame, AxFilenameList const& files,
                     AxBindingsList const& bindings);
    void edited();
};
