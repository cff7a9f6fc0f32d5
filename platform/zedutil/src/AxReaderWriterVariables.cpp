#include "AxLimits.h"
#include "AxReadBudget.h"
#include "AxReadFrame.h"
#include "AxReaderWriter.h"
#include "AxRegistryShape.h"
#include "AxRwList.h"
#include "AxRwVariableBindings.h"
#include "AxlFunctions.h"
#include "AxlPrint.h"
#include "AxlSyntaxError.h"

namespace
{
/// The variable that one cell refers to: `$name`, or a string that is nothing but `$(name)`; else empty.
std::string_view variableOf(AxlObj const* cell)
{
    if (cell->tag() == AxlObj::Tag::Symbol && cell->isReference())
    {
        return cell->text().substr(1);
    }
    if (cell->tag() == AxlObj::Tag::String && cell->hasEmbeddedReference())
    {
        std::string_view const text = cell->text();
        if (text.starts_with("$(") && text.find(')') == text.size() - 1 && text.size() > 3)
        {
            return text.substr(2, text.size() - 3);
        }
    }
    return {};
}

/// The variable that stands for all of a value, with a default or without; empty when it is no such value.
std::string_view wholeReference(AxlObj const* items)
{
    if (!items->isPair() || items->cdr()->isPair())
    {
        return {};
    }
    AxlObj const* const first = items->car();
    bool const hasDefault = first->isPair() && first->cdr()->isPair();
    return variableOf(hasDefault ? first->car() : first);
}

/// How a text refers to the variable: `$name`, and in quotes where that would not be read as one word.
std::string referenceTo(AxSymbolString variable)
{
    std::string const word = '$' + variable.string().string();
    try
    {
        AxlInputStream stream('(' + word + ')');
        AxlObjPtr const items = AxcRead(stream);
        if (items->cdr()->nil() && items->car()->isSymbol() && items->car()->text() == word)
        {
            return word;
        }
    }
    catch (AxlSyntaxError const&)
    {
        // The word is none.
    }
    std::string written;
    axAppendCell(written, AxcString("$(" + variable.string().string() + ')').get());
    return written;
}

/// One variable whose value is being read. What stands in the value may name variables again, itself among them.
class ValueScope
{
public:
    ValueScope() { ++ourDepth; }
    ValueScope(ValueScope const&) = delete;
    ValueScope& operator=(ValueScope const&) = delete;
    ~ValueScope() { --ourDepth; }

    /// False, and reported, when values would be read too often or too deep in each other.
    static bool isAllowed(AxSymbolString variable)
    {
        static AxReadBudget budget(axLimits.variableUses);
        if (budget.grants(ourDepth == 1) && ourDepth <= axLimits.variableChain &&
            AxReadFrame::depth() <= axLimits.recordNesting)
        {
            return true;
        }
        if (budget.isFirstRefusal())
        {
            AxReadFrame::reportLimit("variable-limit",
                                     "variables name each other too often: \"" + variable.string().string() + '"');
        }
        return false;
    }

private:
    static inline unsigned ourDepth = 0;
};
} // namespace

bool AxReaderWriter::isVariableReference() const
{
    return flag(VariableReference);
}

void AxReaderWriter::setIsVariableReference(bool isReference)
{
    if (!isReference)
    {
        dropReference();
        return;
    }
    setFlag(VariableReference, true);
    Rare& mine = rare();
    if (mine.written.empty())
    {
        mine.written = referenceTo(mine.variableName);
    }
}

void AxReaderWriter::clearAllVariableReferenceFlags()
{
    dropReference();
    if (AxReaderWriterRegistry* const members = registryIfAny())
    {
        for (std::size_t i = 0; i < members->size(); ++i)
        {
            AxRegistryEntry const entry = members->entry(i);
            if (!entry.content) // the file member clears its content
            {
                entry.member->clearAllVariableReferenceFlags();
            }
        }
    }
    if (flag(List))
    {
        for (AxListItem* item = static_cast<AxRwList*>(this)->first(); item; item = item->next())
        {
            AxRwList::element(item)->clearAllVariableReferenceFlags();
        }
    }
}

AxSymbolString AxReaderWriter::variableName() const
{
    Rare const* const mine = rareOrNull();
    return mine ? mine->variableName : AxSymbolString();
}

void AxReaderWriter::setVariableName(AxSymbolString name)
{
    Rare& mine = rare();
    mine.variableName = name;
    if (flag(VariableReference))
    {
        mine.written = referenceTo(name);
    }
}

bool AxReaderWriter::variableIsBound() const
{
    return flag(VariableBound);
}

void AxReaderWriter::unbindVariable()
{
    setFlag(VariableBound, false);
}

void AxReaderWriter::keepReference(AxSymbolString variable, std::string written, bool bound)
{
    Rare& mine = rare();
    mine.variableName = variable;
    mine.written = std::move(written);
    setFlag(VariableReference, true);
    setFlag(VariableBound, bound);
}

std::string const& AxReaderWriter::referenceText() const
{
    static std::string const none;
    Rare const* const mine = rareOrNull();
    return mine ? mine->written : none;
}

void AxReaderWriter::dropReference()
{
    setFlag(Inherited, false);
    if (flag(VariableReference))
    {
        setFlag(VariableReference, false);
        setFlag(VariableBound, false);
        Rare& mine = rare();
        mine.variableName = AxSymbolString();
        mine.written.clear();
    }
}

bool AxReaderWriter::readReference(AxlObj const* items, AxFilenameList const& files, AxBindingsList const& bindings)
{
    std::string_view const variable = wholeReference(items);
    if (variable.empty())
    {
        return false;
    }
    AxlObj const* const first = items->car();
    bool const hasDefault = first->isPair();
    std::string written;
    axAppendCell(written, first);
    keepReference(AxSymbolString(variable), std::move(written), false);
    if (hasDefault)
    {
        checkAndSetDefaultRWValue(AxlObjPtr(first), files, bindings);
    }
    readBinding(files, bindings);
    dropKeptItems(); // the default's and the value's stand where those do
    setFlag(Rejected, false);
    return true;
}

bool AxReaderWriter::readBinding(AxFilenameList const& files, AxBindingsList const& bindings)
{
    AxlInputStream stream('(' + referenceText() + ')');
    if (AxlObjPtr const items = AxcRead(stream); wholeReference(items.get()).empty())
    {
        readBody(items.get(), files, bindings); // the references stand inside texts
        setFlag(Rejected, false);
        return variableIsBound();
    }
    // A variable may name another one; a chain that does not end is left unbound.
    AxSymbolString variable = variableName();
    AxlObjPtr const* cells = nullptr;
    for (unsigned i = 0; i < axLimits.variableChain; ++i)
    {
        cells = AxRwVariableBindings::find(variable, bindings);
        std::string_view const next = cells && (*cells)->isPair() ? variableOf((*cells)->car()) : std::string_view();
        if (next.empty())
        {
            break;
        }
        variable = AxSymbolString(next);
        cells = nullptr;
    }
    ValueScope const scope;
    if (!cells || !ValueScope::isAllowed(variable))
    {
        return false;
    }
    Rare& mine = rare();
    AxSymbolString const name = mine.variableName;
    std::string const written = mine.written;
    readBody(cells->get(), files, bindings);
    dropKeptItems();
    bool const isBound = !flag(Rejected);
    setFlag(Rejected, false);
    keepReference(name, written, isBound);
    return isBound;
}

bool AxReaderWriter::checkAndSetDefaultRWValue(AxlObjPtr const& item, AxFilenameList const& files,
                                               AxBindingsList const& bindings)
{
    AxlObj const* const list = item.get();
    if (!list->isPair() || variableOf(list->car()).empty())
    {
        return false;
    }
    readBody(list->cdr(), files, bindings);
    return true;
}

void AxReaderWriter::bindAll(AxBindingsList const& bindings, bool onlyUnbound)
{
    if (flag(VariableReference) && (!onlyUnbound || !flag(VariableBound)))
    {
        readBinding(nullFilenames(), bindings);
    }
    auto const bindBelow = [&bindings, onlyUnbound](AxReaderWriter& below)
    {
        if (onlyUnbound)
        {
            below.bindLocalVariables(bindings);
        }
        else
        {
            below.bindVariables(bindings);
        }
    };
    if (AxReaderWriterRegistry* const members = registryIfAny())
    {
        for (std::size_t i = 0; i < members->size(); ++i)
        {
            AxRegistryEntry const entry = members->entry(i);
            if (!entry.content)
            {
                bindBelow(*entry.member);
            }
        }
    }
    if (flag(List))
    {
        for (AxListItem* item = static_cast<AxRwList*>(this)->first(); item; item = item->next())
        {
            bindBelow(*AxRwList::element(item));
        }
    }
}

void AxReaderWriter::bindVariables(AxBindingsList const& bindings)
{
    bindAll(bindings, false);
}

void AxReaderWriter::bindLocalVariables(AxBindingsList const& bindings)
{
    bindAll(bindings, true);
}

AxUnboundVariableList AxReaderWriter::unboundVariables() const
{
    AxUnboundVariableList unbound;
    if (flag(VariableReference) && !flag(VariableBound))
    {
        std::string value;
        const_cast<AxReaderWriter*>(this)->putData(value, 0);
        unbound.emplace_back(variableName().string(), AxString(value));
    }
    auto const addFrom = [&unbound](AxReaderWriter const& below)
    { unbound.splice(unbound.end(), below.unboundVariables()); };
    if (AxReaderWriterRegistry const* const members = registryIfAny())
    {
        for (std::size_t i = 0; i < members->size(); ++i)
        {
            AxRegistryEntry const entry = members->entry(i);
            if (!entry.content)
            {
                addFrom(*entry.member);
            }
        }
    }
    if (flag(List))
    {
        for (AxListItem const* item = static_cast<AxRwList const*>(this)->first(); item; item = item->next())
        {
            addFrom(*AxRwList::element(item));
        }
    }
    return unbound;
}

bool AxReaderWriter::hasVariableReference() const
{
    if (flag(VariableReference))
    {
        return true;
    }
    if (AxReaderWriterRegistry const* const members = registryIfAny())
    {
        for (std::size_t i = 0; i < members->size(); ++i)
        {
            AxRegistryEntry const entry = members->entry(i);
            if (!entry.content && entry.member->hasVariableReference()) // the file member asks its content
            {
                return true;
            }
        }
    }
    if (flag(List))
    {
        for (AxListItem const* item = static_cast<AxRwList const*>(this)->first(); item; item = item->next())
        {
            if (AxRwList::element(item)->hasVariableReference())
            {
                return true;
            }
        }
    }
    return false;
}

bool AxReaderWriter::bindToRwAsVariable(AxReaderWriter const* source)
{
    if (!source || !flag(VariableReference))
    {
        return false;
    }
    Rare const& mine = *rareOrNull();
    AxSymbolString const name = mine.variableName;
    std::string const written = mine.written;
    std::string const text = source->writtenText();
    bool const isBound = readText(text, AxFilename::nullFilename(), nullFilenames(), nullVariableReference());
    keepReference(name, written, isBound);
    return isBound;
}
