#pragma once

#include "AxObjectType.h"
#include "AxRwList.h"

#include <memory>
#include <vector>

class AxTypeIndex;
class AxZedObjectParameters;

/// Records in ascending order of their object types, found by best match; owns them.
class ZEDOBJPARAM_API AxZedObjectParametersList : public AxRwList
{
public:
    AxZedObjectParametersList(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxZedObjectParametersList(AxString const& name, AxReaderWriterRegistry* registry);
    AxZedObjectParametersList(AxZedObjectParametersList const& other);
    ~AxZedObjectParametersList() override;
    /// Copies the records.
    AxZedObjectParametersList& operator=(AxZedObjectParametersList const& other);

    // ---- The order of the virtual operations is part of the interface. ----
    /// Takes ownership and puts the record in its place; one of equal type is deleted first. Null is ignored.
    virtual void addParameters(AxZedObjectParameters* record);

protected:
    virtual AxListItem* lookupParameters(AxObjectType const& type) const;

public:
    /// The record of exactly `type`, else the last pattern that it fits; null and `matched` untouched when there is
    /// none.
    virtual AxZedObjectParameters* lookupParameters(AxObjectType const& type, AxObjectType* matched) const;
    /// Deletes the best match if its type is exactly `type`. Says so even when nothing is removed.
    virtual void removeParameters(AxObjectType const& type);
    /// Each record takes what it does not specify from the nearest earlier record that it fits, or whose super type is
    /// the catch-all mark.
    virtual void inheritValuesFromAncestors();
    // ---- End of the virtual operations. ----

    /// Deletes every record.
    void emptyList();

    /// Lets the list accept elements of this head, whose records get `superType` when they have none.
    void registerElementType(AxString const& head, int superType);

    using AxRwList::getData;
    using AxRwList::getSelf;
    void getSelf(AxlObjPtr const& expression, AxFilenameList const& files, AxBindingsList const& bindings) override;
    AxlObjPtr getData(AxlObjPtr const& item, AxFilenameList const& files, AxBindingsList const& bindings) override;
    using AxRwList::putSelf;
    void putSelf(std::string& out, int indent, bool all, AxFilename const& file) override;
    char const* readerWriterType() const override;
    bool equals(AxZedObjectParametersList const& other) const { return AxRwList::equals(other); }

private:
    struct ElementType
    {
        AxSymbolString head;
        int superType;
    };
    ElementType const* elementType(AxSymbolString head) const;
    void reportUnknown(AxlObj const* head) const;
    AxSymbolString headFor(AxObjectType const& type) const;
    void writeRecord(AxZedObjectParameters& record, std::string& out, int indent, bool all,
                     AxFilename const& file) const;
    void copyRecords(AxZedObjectParametersList const& other);
    void forgetUnknownTypes();

    std::vector<ElementType> myElementTypes;
    AxString myCurrentElementType;
    AxlObj const* myElement = nullptr; // while it is read
    std::unique_ptr<AxTypeIndex> myIndex;
    bool myTypesAreKnown = false; // while the list is read, nobody else has its records
};
