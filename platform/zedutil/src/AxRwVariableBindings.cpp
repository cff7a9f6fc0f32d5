#include "AxRwVariableBindings.h"

#include "AxDiagnostic.h"
#include "AxLimits.h"
#include "AxReadBudget.h"
#include "AxReadFrame.h"
#include "AxReaderWriterFactory.h"
#include "AxRwElement.h"
#include "AxTreeCells.h"
#include "AxlFunctions.h"
#include "AxlPrint.h"

#include <algorithm>

static AxTypeEntry<AxRwVariableBindings> const variableBindingsEntry;

namespace
{
/// The value items as text, without what refers to other variables being resolved.
std::string textOf(AxlObjPtr const& cells)
{
    AxlObj const* const first = cells->car();
    bool const isOneWord = !cells->cdr()->isPair() && (first->isString() || first->isSymbol());
    return isOneWord ? std::string(first->text()) : axWrittenItems(cells.get());
}

class Expansion
{
public:
    explicit Expansion(AxBindingsList const& bindings) : myBindings(bindings) {}

    void append(std::string_view text)
    {
        for (std::size_t at = 0; at < text.size() && !myIsBeyondLimit;)
        {
            std::size_t const next = std::min(text.find('$', at), text.size());
            myOut += text.substr(at, next - at);
            at = next + appendFrom(text.substr(next));
        }
    }
    std::string& out() { return myOut; }
    AxSymbolString first() const { return myFirst; }
    bool isComplete() const { return myIsComplete; }
    bool isBeyondLimit() const { return myIsBeyondLimit; }

private:
    /// Appends what the beginning of `text`, a "$", stands for; answers how much of it was taken.
    std::size_t appendFrom(std::string_view text)
    {
        if (text.starts_with("$$("))
        {
            myOut += "$(";
            return 3;
        }
        std::size_t const end = text.starts_with("$(") ? text.find(')') : std::string_view::npos;
        if (end == std::string_view::npos)
        {
            myOut += text.substr(0, 1);
            return std::min<std::size_t>(text.size(), 1);
        }
        AxSymbolString const name(text.substr(2, end - 2));
        if (myFirst.isNull())
        {
            myFirst = name;
        }
        appendVariable(name, text.substr(0, end + 1));
        return end + 1;
    }
    void appendVariable(AxSymbolString name, std::string_view written)
    {
        // A variable may be made of others; a chain that does not end is left as it stands.
        bool const isInChain = myDepth < axLimits.variableChain;
        AxlObjPtr const* const cells = isInChain ? AxRwVariableBindings::find(name, myBindings) : nullptr;
        if (!cells)
        {
            myIsComplete = false;
            myOut += written;
            return;
        }
        ++myDepth;
        AxlObj const* const value = (*cells)->car();
        if (value->isReference())
        {
            appendVariable(AxSymbolString(value->text().substr(1)), written);
        }
        else
        {
            appendValue(textOf(*cells));
        }
        --myDepth;
    }
    void appendValue(std::string const& value)
    {
        static AxReadBudget budget(axLimits.variableUses);
        mySize += value.size();
        if (!budget.grants(myDepth == 1) || mySize > axLimits.tokenSize)
        {
            myIsBeyondLimit = true;
            myIsComplete = false;
            return;
        }
        append(value);
    }

    AxBindingsList const& myBindings;
    std::string myOut;
    AxSymbolString myFirst;
    bool myIsComplete = true;
    bool myIsBeyondLimit = false;
    unsigned myDepth = 0;
    std::size_t mySize = 0;
};
} // namespace

AxRwVariableBindings::AxRwVariableBindings(AxSymbolString name, AxReaderWriterRegistry* registry)
    : AxReaderWriter(name, registry)
{
}

AxRwVariableBindings::AxRwVariableBindings(AxRwVariableBindings const& other)
    : AxReaderWriter(other), myVariables(other.myVariables)
{
}

AxRwVariableBindings::~AxRwVariableBindings() = default;

AxRwVariableBindings& AxRwVariableBindings::operator=(AxRwVariableBindings const& other)
{
    if (this != &other)
    {
        myVariables = other.myVariables;
        myPlaces.clear();
        carryState(other);
    }
    return *this;
}

void AxRwVariableBindings::set(AxSymbolString name, AxlObjPtr const& cells)
{
    std::size_t const place = placeOf(name);
    if (place < myVariables.size())
    {
        myVariables[place].cells = cells;
    }
    else
    {
        myVariables.push_back({name, cells});
    }
    valueAssigned();
    setFlag(Specified, true);
}

void AxRwVariableBindings::setString(AxSymbolString name, AxString const& text)
{
    set(name, AxcCons(AxcString(text.string()), axcNil()));
}

bool AxRwVariableBindings::remove(AxSymbolString name)
{
    if (std::erase_if(myVariables, [name](Variable const& variable) { return variable.name == name; }) == 0)
    {
        return false;
    }
    myPlaces.clear();
    valueAssigned();
    return true;
}

void AxRwVariableBindings::clear()
{
    clearVariables();
    valueAssigned();
}

AxlObjPtr const* AxRwVariableBindings::find(AxSymbolString name) const
{
    std::size_t const place = placeOf(name);
    return place < myVariables.size() ? &myVariables[place].cells : nullptr;
}

/// The number of variables when there is none of that name.
std::size_t AxRwVariableBindings::placeOf(AxSymbolString name) const
{
    constexpr std::size_t few = 32;
    if (myVariables.size() <= few)
    {
        auto const known = std::find_if(myVariables.begin(), myVariables.end(),
                                        [name](Variable const& variable) { return variable.name == name; });
        return static_cast<std::size_t>(known - myVariables.begin());
    }
    for (std::size_t next = myPlaces.size(); next < myVariables.size(); ++next)
    {
        myPlaces.emplace(myVariables[next].name.id(), next);
    }
    auto const known = myPlaces.find(name.id());
    return known == myPlaces.end() ? myVariables.size() : known->second;
}

AxlObjPtr const* AxRwVariableBindings::find(AxSymbolString name, AxBindingsList const& bindings)
{
    for (AxRwVariableBindings const* const set : bindings)
    {
        if (AxlObjPtr const* const cells = set ? set->find(name) : nullptr)
        {
            return cells;
        }
    }
    return nullptr;
}

AxString AxRwVariableBindings::stringValue(AxSymbolString name, bool* found) const
{
    AxlObjPtr const* const cells = find(name);
    if (found)
    {
        *found = cells != nullptr;
    }
    return cells ? AxString(textOf(*cells)) : AxString();
}

std::vector<AxSymbolString> AxRwVariableBindings::names() const
{
    std::vector<AxSymbolString> all;
    for (Variable const& variable : myVariables)
    {
        all.push_back(variable.name);
    }
    return all;
}

void AxRwVariableBindings::addAllFrom(AxRwVariableBindings const& other)
{
    if (this != &other)
    {
        for (Variable const& variable : other.myVariables)
        {
            set(variable.name, variable.cells);
        }
        for (auto const& [after, item] : other.keptItems())
        {
            keepItem(after, item);
        }
    }
}

bool AxRwVariableBindings::equals(AxRwVariableBindings const& other) const
{
    return myVariables.size() == other.myVariables.size() &&
           std::all_of(myVariables.begin(), myVariables.end(),
                       [&other](Variable const& variable)
                       {
                           AxlObjPtr const* const theirs = other.find(variable.name);
                           return theirs && axWrittenItems(theirs->get()) == axWrittenItems(variable.cells.get());
                       });
}

std::string AxRwVariableBindings::expand(std::string_view text, AxBindingsList const& bindings, bool* complete,
                                         AxSymbolString* first)
{
    Expansion expansion(bindings);
    expansion.append(text);
    if (complete)
    {
        *complete = expansion.isComplete();
    }
    if (first)
    {
        *first = expansion.first();
    }
    if (expansion.isBeyondLimit())
    {
        AxReadFrame::reportLimit("variable-limit",
                                 "variables name each other too often in \"" + std::string(text.substr(0, 40)) + '"');
        return std::string(text);
    }
    return std::move(expansion.out());
}

AxlObjPtr AxRwVariableBindings::getData(AxlObjPtr const& items, AxFilenameList const&, AxBindingsList const&)
{
    clearVariables();
    for (AxlObj const* rest = items.get(); rest->isPair(); rest = rest->cdr())
    {
        AxlObj const* const item = rest->car();
        AxSymbolString const name = item->car()->symbol();
        bool const isXml = name == AxTreeCells::theXmlHead;
        if (!name.isNull() && item->cdr()->isPair() && !isXml)
        {
            set(name, AxlObjPtr(item->cdr()));
            continue;
        }
        std::string written;
        axAppendCell(written, item);
        keepItem(AxSymbolString(), std::move(written));
        if (isXml)
        {
            continue; // that was told when the tree it comes from was read
        }
        AxDiagnostic fault;
        fault.severity = AxSeverity::Warning;
        fault.code = "not-a-variable";
        fault.line = item->line();
        fault.column = item->column();
        fault.text = "expected (name value...) in \"" + AxReaderWriter::name().string().string() + '"';
        AxDiagnostics::report(std::move(fault));
    }
    return axcNil();
}

void AxRwVariableBindings::putData(std::string& out, int indent)
{
    for (Variable const& variable : myVariables)
    {
        out += '\n';
        putIndent(out, indent + 1);
        out += '(';
        axAppendName(out, variable.name);
        out += ' ';
        out += axWrittenItems(variable.cells.get());
        out += ')';
    }
}

void AxRwVariableBindings::reset()
{
    AxReaderWriter::reset();
    clearVariables();
}

char const* AxRwVariableBindings::readerWriterType() const
{
    return "AxRwVariableBindings";
}
