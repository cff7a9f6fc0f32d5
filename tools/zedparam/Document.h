#pragma once

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "AxEnvironment.h"
#include "AxReaderWriter.h"
#include "Differences.h"
#include "ElementSource.h"
#include "NameIndex.h"

/// One object of a file, or all of it, to be held against its like in whatever notation.
struct Document
{
    enum class Kind
    {
        Record,
        Content, ///< of a table, definition or model set; the head word is free
        Tree     ///< of no known kind: compared as it stands
    };

    Kind kind = Kind::Tree;
    std::string file{};
    std::string name{};               ///< of a record
    AxReaderWriter* object = nullptr; ///< null for a Tree
    std::shared_ptr<void> owner{};    ///< keeps the object, unless somebody else does
    AxEnvValuePtr element{};          ///< the object's or the root element of an XML file
    bool hasParts = false;            ///< the element's types and what users see of it count, too
};

/// What is in a file; empty after reports when it cannot be read. `database` binds variables, if it is named.
std::vector<Document> readDocuments(std::string const& file, std::string const& database);

/// A document as a tree of items: what is known as it would be saved, everything else as it stands.
class DocumentTree
{
public:
    /// With `all`, values that hold their default are in it, too.
    DocumentTree(Document const& document, bool all);

    Item const& root() const { return myRoot; }
    Item& root() { return myRoot; }
    /// Gives an element of an entity file its types and what users see of it; a record's text has no place for them.
    void addEntityParts(Document const& document);

private:
    std::unique_ptr<TextTree> myText;
    Item myRoot;
};

/// Finds where items of a document stand in its file.
class DocumentPlaces
{
public:
    explicit DocumentPlaces(Document const& document) : myDocument(document) {}

    /// The place of an item's value; of what is not there, that of what it would stand in.
    TextTree::Place placeOf(Difference const& difference, int side);
    /// What is read at the path; null when nothing is known of it.
    AxReaderWriter* objectAt(std::span<PathStep const> path, int side) const;

private:
    AxReaderWriter* memberAt(AxReaderWriter& parent, PathStep const& step, int side) const;
    Item const* itemAt(Item const& parent, PathStep const& step, int side, AxReaderWriter const* member);
    TextTree::Place inText(std::span<PathStep const> path, int side);
    TextTree::Place inElement(std::span<PathStep const> path, int side);

    Document const& myDocument;
    mutable NameIndex<AxReaderWriter> myMembers;
    std::optional<ElementSource> myElement;
    std::unique_ptr<TextTree> myText;
    Item mySource;
    NameIndex<Item const> myItems;
};
