#pragma once

#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "AxSymbolString.h"
#include "AxlObj.h"
#include "NameIndex.h"

class AxReaderWriter;
struct AxDiagnostic;

/// One keyword on the way from a file's first expression to a value, and what is read there, which knows its aliases.
struct SourceStep
{
    static constexpr int theLast = -1;

    AxSymbolString keyword; ///< null: any item
    AxReaderWriter const* rw = nullptr;
    int occurrence = theLast;    ///< of an element among those of its name, from 0; of repeated members the last counts
    bool isOneOfSeveral = false; ///< whether others share its name
};

/// The first expression of a file, read again to tell where something stands in it. Each search answers null when
/// nothing is found.
class Source
{
public:
    /// Without an expression, and without a report, when the file cannot be read.
    explicit Source(std::string const& file);
    explicit Source(AxlObjPtr expression) : myExpression(std::move(expression)) {}
    /// Of a file that the library has read: that it cannot be read once more is reported.
    static Source again(std::string const& file);

    /// False when searches find nothing because the file could not be read.
    bool isRead() const { return myIsRead; }
    /// What kept the file from being read, of those of errno.
    int error() const { return myError; }

    /// Nil when there is none.
    AxlObj const& expression() const { return *myExpression; }
    /// What follows the last keyword.
    AxlObj const* value(std::span<SourceStep const> path) const;
    /// The first `$variable`, or string with `$(variable)` in it.
    AxlObj const* reference(std::string_view variable) const;
    /// The first list that `accept` takes, each before those in it.
    AxlObj const* find(std::function<bool(AxlObj const& list)> const& accept) const;
    /// The second word of the first `(head word ...)`.
    AxlObj const* item(std::string_view head, std::string_view word) const;
    /// The first list with these as its second and third words. All are known once one was asked for.
    AxlObj const* listWith(std::string_view second, std::string_view third) const;
    /// Shows `visit` every list, each before those in it.
    void forEachList(std::function<void(AxlObj const& list)> const& visit) const;

    /// Sets line and column to those of `cell` unless it is null.
    static void setPlace(AxDiagnostic& finding, AxlObj const* cell);

private:
    using WordPair = std::pair<std::string_view, std::string_view>;
    using ListsByWords = std::map<WordPair, AxlObj const*>;

    void parse(std::string text);
    AxlObj const* valueBelow(AxlObj const* items, std::span<SourceStep const> path) const;

    AxlObjPtr myExpression;
    mutable NameIndex<AxlObj const> myByName;      // the items of long lists
    mutable std::optional<ListsByWords> myByHead;  // and second word
    mutable std::optional<ListsByWords> myByWords; // the second and the third
    bool myIsRead = true;
    int myError = 0;
};
