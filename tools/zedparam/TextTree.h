#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "AxlSyntaxError.h"

class TextItem;

/// Parameter text as it stands: tokens that cover every byte of it, comments and blanks included, and the atoms and
/// lists that they form. What is a token, and which text is faulty, is what the library's reader says. Unlike the
/// reader the tree goes on behind a fault and behind the first expression, which is the only one that the library
/// reads. Takes linear time and no stack. Texts of 4 GiB and more are refused by the file limit before they come here.
class TextTree
{
public:
    using Index = std::uint32_t;
    static constexpr Index none = ~Index(0);
    static constexpr std::string_view theByteOrderMark = "\xEF\xBB\xBF";

    enum class Kind : std::uint8_t
    {
        Blank,   ///< blanks and line ends; a byte-order mark at the beginning
        Comment, ///< from ";" up to the end of the line, without it
        Open,
        Close,
        String,
        Number,
        Word,
        Fault ///< what the reader refuses; part of no item
    };

    struct Token
    {
        std::uint32_t begin;
        std::uint32_t end;
        Kind kind;
        Index item = none; ///< the atom, or the list that a parenthesis opens or closes
    };

    /// Both count from 1, the column in bytes; a byte-order mark has no column.
    struct Place
    {
        std::uint32_t line;
        std::uint32_t column;
    };

    explicit TextTree(std::string text);
    TextTree(TextTree const&) = delete;
    TextTree& operator=(TextTree const&) = delete;

    std::string const& text() const { return myText; }
    /// In their order, each beginning where the one before ends.
    std::vector<Token> const& tokens() const { return myTokens; }
    std::string_view textOf(Token const& token) const
    {
        return std::string_view(myText).substr(token.begin, token.end - token.begin);
    }

    /// What the library reads of the text; null when there is no expression.
    TextItem root() const;
    /// The innermost atom or list that the byte belongs to; null outside of all.
    TextItem itemAt(std::size_t offset) const;
    Place place(std::size_t offset) const;
    /// The byte at a place: its line's end for columns beyond, the text's end for lines beyond.
    std::size_t offset(Place place) const;

    /// In their order. A text that ends too early is one fault: that of the string or of the innermost list.
    std::vector<AxlSyntaxError> const& faults() const { return myFaults; }
    /// Whether the library reads the first expression, or finds none.
    bool isReadable() const { return myIsReadable; }

private:
    friend class TextItem;
    struct Builder;

    struct Node
    {
        Index firstToken;
        Index lastToken;
        Index parent;
        Index firstChild = none;
        Index next = none;
    };

    std::string myText;
    std::vector<Token> myTokens;
    std::vector<Node> myNodes; // each before those in it
    std::vector<std::uint32_t> myLineStarts;
    std::vector<AxlSyntaxError> myFaults;
    bool myIsReadable = true;
};

/// An atom or a list of a tree, or null. Lives as long as the tree. What is asked of null is null or empty.
class TextItem
{
public:
    TextItem() = default;

    explicit operator bool() const { return myTree != nullptr; }
    friend bool operator==(TextItem const&, TextItem const&) = default;

    bool isList() const { return is(TextTree::Kind::Open); }
    bool isString() const { return is(TextTree::Kind::String); }
    bool isNumber() const { return is(TextTree::Kind::Number); }
    bool isWord() const { return is(TextTree::Kind::Word); }
    /// False for a list whose closing parenthesis is missing.
    bool isClosed() const;

    /// From the first byte to that behind the last, parentheses and quotes included.
    std::size_t begin() const { return myTree != nullptr ? firstToken().begin : 0; }
    std::size_t end() const { return myTree != nullptr ? lastToken().end : 0; }
    std::string_view source() const;
    /// Place of the first byte; zeros for null.
    TextTree::Place place() const;
    /// Indices among the tree's tokens.
    TextTree::Index firstTokenIndex() const { return myTree != nullptr ? node().firstToken : TextTree::none; }
    TextTree::Index lastTokenIndex() const { return myTree != nullptr ? node().lastToken : TextTree::none; }

    /// What an atom says: of a string what is between its quotes, escapes resolved. Empty for a list.
    std::string value() const;
    /// What the first item of a list says; empty when that is a list, or none.
    std::string head() const;

    TextItem parent() const { return at(myTree != nullptr ? node().parent : TextTree::none); }
    TextItem next() const { return at(myTree != nullptr ? node().next : TextTree::none); }
    TextItem firstChild() const { return at(myTree != nullptr ? node().firstChild : TextTree::none); }
    /// What follows the head.
    TextItem firstValue() const { return firstChild().next(); }
    /// The last list in this one with that head, behind its own head: of repeated keywords the last counts.
    TextItem find(std::string_view keyword) const;

private:
    friend class TextTree;
    TextItem(TextTree const* tree, TextTree::Index index) : myTree(tree), myIndex(index) {}

    TextItem at(TextTree::Index index) const { return index == TextTree::none ? TextItem() : TextItem(myTree, index); }
    TextTree::Node const& node() const { return myTree->myNodes[myIndex]; }
    TextTree::Token const& firstToken() const { return myTree->myTokens[node().firstToken]; }
    TextTree::Token const& lastToken() const { return myTree->myTokens[node().lastToken]; }
    bool is(TextTree::Kind kind) const { return myTree != nullptr && firstToken().kind == kind; }

    TextTree const* myTree = nullptr;
    TextTree::Index myIndex = TextTree::none;
};
