#pragma once

#include "AxReaderWriter.h"

#include <unordered_map>
#include <vector>

/// A named set of variables. A variable is a name and its value cells, so that it can feed a member of any kind.
///
/// Text: `(variable-bindings (name value...)...)`. Copies share the cells.
class ZEDOBJPARAM_API AxRwVariableBindings : public AxReaderWriter
{
public:
    explicit AxRwVariableBindings(AxSymbolString name = AxSymbolString("variable-bindings"),
                                  AxReaderWriterRegistry* registry = nullptr);
    AxRwVariableBindings(AxRwVariableBindings const& other);
    ~AxRwVariableBindings() override;
    AxRwVariableBindings& operator=(AxRwVariableBindings const& other);

    /// `cells` is the list of value items. A repeated name replaces.
    void set(AxSymbolString name, AxlObjPtr const& cells);
    void setString(AxSymbolString name, AxString const& text);
    bool remove(AxSymbolString name);
    /// The value items of `name`, null when it is unknown.
    AxlObjPtr const* find(AxSymbolString name) const;
    /// The value as text: a string's bytes, else the items as written. `found` may be null.
    AxString stringValue(AxSymbolString name, bool* found = nullptr) const;
    std::vector<AxSymbolString> names() const;
    /// Also the items that were not understood.
    void addAllFrom(AxRwVariableBindings const& other);
    bool empty() const { return myVariables.empty(); }
    void clear();

    bool equals(AxRwVariableBindings const& other) const;
    bool operator==(AxRwVariableBindings const& other) const { return equals(other); }

    /// The items of `name` in the first set that knows it; null when none does.
    static AxlObjPtr const* find(AxSymbolString name, AxBindingsList const& bindings);
    /// `text` with each "$(name)" that is known replaced and "$$(" read as "$("; `complete` tells whether all were
    /// known, `first` which variable was met first (empty: none). Beyond a limit, which is reported, all of it stays as
    /// it is written.
    static std::string expand(std::string_view text, AxBindingsList const& bindings, bool* complete = nullptr,
                              AxSymbolString* first = nullptr);

    using AxReaderWriter::getData;
    using AxReaderWriter::putData;
    AxlObjPtr getData(AxlObjPtr const& items, AxFilenameList const& files, AxBindingsList const& bindings) override;
    void putData(std::string& out, int indent) override;
    void reset() override;
    char const* readerWriterType() const override;

private:
    struct Variable
    {
        AxSymbolString name;
        AxlObjPtr cells;
    };
    std::size_t placeOf(AxSymbolString name) const;
    void clearVariables()
    {
        myVariables.clear();
        myPlaces.clear();
    }

    std::vector<Variable> myVariables;
    mutable std::unordered_map<void const*, std::size_t> myPlaces; ///< of the first so many, by their names
};
