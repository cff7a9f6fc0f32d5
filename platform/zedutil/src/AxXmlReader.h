#pragma once

#include "AxTextReader.h"
#include "AxXmlDocument.h"

#include <memory>
#include <string>
#include <vector>

/// Reads records straight from the characters of an XML document into their members. Whatever is not in the usual shape
/// is read by way of the nodes of the tree, which are made for it; so what is read, kept and reported is what reading
/// the whole tree does.
class AxXmlReader
{
public:
    /// `object` is the element that is read.
    explicit AxXmlReader(AxEnvObjectPtr const& object);
    ~AxXmlReader();
    AxXmlReader(AxXmlReader const&) = delete;
    AxXmlReader& operator=(AxXmlReader const&) = delete;

    /// Reads the element. False, and nothing taken, when it or the class needs nodes.
    bool readObject(AxReaderWriter& rw, AxFilenameList const& files, AxBindingsList const& bindings);
    /// Whether the record must be compared with its node for what was not understood.
    bool isOdd() const { return myIsOdd; }
    /// The members that must be, by the places of their nodes among the children.
    std::vector<std::uint32_t> const& oddChildren() const { return myOddChildren; }

    // What a list asks of the element that it is to read; see AxTextReader.
    void readListElement(AxReaderWriter& rw, AxFilenameList const& files, AxBindingsList const& bindings);
    void locateElement(std::uint32_t& line, std::uint32_t& column) const;
    AxlObjPtr elementCells() const;
    std::string_view elementHead() const;
    std::string_view elementType(std::string_view wanted) const;

private:
    using Reading = AxTypeInfo::Reading;
    using Attribute = AxXmlDocument::Attribute;

    /// An element that is being read.
    struct Element
    {
        std::uint32_t node;
        std::uint32_t position = 0;            ///< among the children of `outer`
        AxReaderWriter const* guide = nullptr; ///< by which the form of trees tells what its parts are; null: by none
        AxSymbolString head{};
        Element const* outer = nullptr;
    };
    struct Record;
    struct Item;
    struct Model;

    bool readElement(AxReaderWriter& rw, Element const& element, AxFilenameList const& files,
                     AxBindingsList const& bindings);
    bool isUsual(AxReaderWriter const& rw, Element const& element, bool isList) const;
    void readElements(AxRwList& list, Element const& element, AxFilenameList const& files,
                      AxBindingsList const& bindings);
    void readItems(AxReaderWriter& rw, Element const& element, AxFilenameList const& files,
                   AxBindingsList const& bindings);
    void addAttributes(Record& record) const;
    void addChildren(Record& record);
    void offerItems(Record& record);
    bool offer(Record& record, Item& item, std::size_t index);
    void makeCell(Record const& record, Item& item) const;
    void readAttribute(Record& record, Item& item);
    void readChild(Record& record, Item& item);
    void readCell(Record& record, Item& item);
    bool readMember(Record& record, std::size_t place, Element const& child);
    bool hasLead(AxReaderWriter const& rw, Element const& element, std::string_view head) const;

    AxlObjPtr cellOf(Element const& parent, std::uint32_t node) const;
    bool isOdd(AxReaderWriter const& rw, std::uint32_t node) const;
    bool hasRest(std::uint32_t node) const;
    AxReaderWriter const* modelOf(std::uint32_t node);
    AxString const* attributeText(std::uint32_t node, std::string_view name, AxString& text) const;
    void noteOdd(Element const& element);
    void noteOdd(Element const& parent, std::uint32_t position);

    AxTextReader myFace{*this}; ///< what lists see of this
    AxXmlDocument::Ptr myDocument;
    Element myRoot;
    Element const* myElement = nullptr; ///< that of a list
    std::vector<Model> myModels;
    bool myIsOdd = false;
    std::vector<std::uint32_t> myOddChildren;
};
