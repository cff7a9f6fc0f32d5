#include "AxSavedVariables.h"

#include "AxReadWholeFile.h"
#include "AxReaderWriterFile.h"
#include "AxRecursiveReaderWriterIterator.h"
#include "AxRwElement.h"
#include "AxSxpParameterDb.h"
#include "AxSxpParameterDbEntry.h"
#include "AxZedObjectParameters.h"
#include "AxlFunctions.h"

#include <algorithm>
#include <vector>

namespace
{
constexpr char const* theDataRoot = "data-root";

/// Bound by each load itself.
bool isOfEachLoad(AxSymbolString name)
{
    return name == "opd-dir";
}

/// A text in which "$$(" outlasts an expansion.
std::string guarded(std::string_view text)
{
    std::string result(text);
    for (std::size_t at = 0; (at = result.find("$$(", at)) != std::string::npos; at += 4)
    {
        result.insert(at, 1, '$');
    }
    return result;
}

/// The items with references to the variables of `known` written out, all others as they are.
AxlObjPtr writtenOut(AxlObj const* items, AxRwVariableBindings const& known, int depth = 0)
{
    constexpr int deepest = 32;
    if (!items->isPair() || depth > deepest)
    {
        return AxlObjPtr(items);
    }
    AxlObj const* const first = items->car();
    AxlObjPtr rest = writtenOut(items->cdr(), known, depth);
    AxlObjPtr const* const value = first->isReference() ? known.find(AxSymbolString(first->text().substr(1))) : nullptr;
    if (value)
    {
        std::vector<AxlObjPtr> cells;
        AxlObjPtr const inner = writtenOut(value->get(), known, depth + 1);
        for (AxlObj const* cell = inner.get(); cell->isPair(); cell = cell->cdr())
        {
            cells.emplace_back(cell->car());
        }
        std::for_each(cells.rbegin(), cells.rend(), [&rest](AxlObjPtr const& cell) { rest = AxcCons(cell, rest); });
        return rest;
    }
    AxlObjPtr written(first);
    if (first->isPair())
    {
        written = writtenOut(first, known, depth + 1);
    }
    else if (first->isString() && first->hasEmbeddedReference())
    {
        written = AxcString(AxRwVariableBindings::expand(guarded(first->text()), {&known}));
    }
    return AxcCons(written, rest);
}

/// Whether a text may refer to the variable.
bool mentions(std::string const& text, AxSymbolString name)
{
    std::string const word(name.view());
    return text.find("$(" + word + ')') != std::string::npos || text.find('$' + word) != std::string::npos;
}
} // namespace

AxSavedVariables::AxSavedVariables(AxSxpParameterDb const& db, AxRwVariableBindings& all) : myAll(all)
{
    AxRwVariableBindings const bound(all);
    bool const isBound = bound.find(theDataRoot) != nullptr;
    all.clear();
    for (AxSxpParameterDb::VariableBindingsPtr const& set : db.variableBindings())
    {
        for (AxSymbolString const name : set->names())
        {
            if (!all.find(name) && !isOfEachLoad(name))
            {
                AxlObjPtr const* const here = bound.find(name);
                all.set(name, here ? *here : *set->find(name));
            }
        }
        for (auto const& [after, item] : set->keptItems())
        {
            all.keepItem(after, item);
        }
    }
    for (AxSymbolString const name : bound.names())
    {
        all.set(name, *bound.find(name));
    }
    // The scan at the next load would put the entity files' records over those that are written.
    myIsDataRootLeftOut =
        !isBound && db.dataRoots() != AxSxpParameterDb::DataRoots::Untouched && all.remove(theDataRoot);
    std::vector<AxSymbolString> settled;
    for (AxSxpParameterDb::VariableBindingsPtr const& set : db.variableBindings())
    {
        AxRwVariableBindings const missed = missedOf(*set);
        for (AxSymbolString const name : missed.empty() ? std::vector<AxSymbolString>() : set->names())
        {
            bool const isFirst = std::find(settled.begin(), settled.end(), name) == settled.end();
            if (isFirst && all.find(name) && !missed.find(name))
            {
                all.set(name, writtenOut(set->find(name)->get(), missed));
                settled.push_back(name);
            }
        }
    }
}

AxRwVariableBindings AxSavedVariables::missedOf(AxRwVariableBindings const& read) const
{
    AxRwVariableBindings others;
    auto const isAlike = [this, &read, &others](AxSymbolString name)
    {
        AxlObjPtr const* const here = myAll.find(name);
        AxlObjPtr const* const there = read.find(name);
        return here && axWrittenItems(here->get()) == axWrittenItems(writtenOut(there->get(), others).get());
    };
    std::vector<AxSymbolString> names = read.names();
    std::erase_if(names, [&isAlike](AxSymbolString name) { return isOfEachLoad(name) || isAlike(name); });
    for (AxSymbolString const name : names)
    {
        others.set(name, *read.find(name));
    }
    std::erase_if(names, isAlike); // it was written out
    AxRwVariableBindings missed;
    for (AxSymbolString const name : names)
    {
        missed.set(name, *read.find(name));
    }
    return missed;
}

std::string const& AxSavedVariables::textOf(AxFilename const& file)
{
    auto const [known, isNew] = myTexts.try_emplace(file.native());
    if (isNew)
    {
        int ignored = 0;
        axReadWholeFile(file, known->second, ignored);
    }
    return known->second;
}

bool AxSavedVariables::takeAlong(AxSxpParameterDbEntry const& entry)
{
    AxZedObjectParameters* const record = entry.parameters();
    boost::shared_ptr<AxRwVariableBindings> const read = entry.variableBindings();
    if (!record || !read)
    {
        return false;
    }
    auto const [known, isNew] = myMissed.try_emplace(read.get());
    AxRwVariableBindings const& missed = isNew ? known->second = missedOf(*read) : known->second;
    if (missed.empty())
    {
        return false;
    }
    std::string text = record->writtenText();
    AxRecursiveReaderWriterIterator all(*record->registry());
    for (AxReaderWriter const* rw = all.first(); rw; rw = all.next())
    {
        auto const* const file = dynamic_cast<AxReaderWriterFile const*>(rw);
        if (file && !file->foundFilename().isNull())
        {
            text += textOf(file->foundFilename());
        }
    }
    AxRwVariableBindings taken;
    std::vector<AxSymbolString> names = read->names();
    for (bool isMore = true; isMore;)
    {
        auto const isMentioned = [&](AxSymbolString name)
        { return record->findVariableBinding(name.string()).isNull() && mentions(text, name); };
        auto const found = std::find_if(names.begin(), names.end(), isMentioned);
        isMore = found != names.end();
        if (isMore)
        {
            text += axWrittenItems(read->find(*found)->get());
            if (missed.find(*found))
            {
                taken.set(*found, *missed.find(*found));
            }
            names.erase(found);
        }
    }
    if (!taken.empty())
    {
        record->addVariableBindingsFromLoad(taken);
    }
    return !taken.empty();
}

void AxSavedVariables::writeOut(AxReaderWriter& rw, AxRwVariableBindings const& read) const
{
    AxRwVariableBindings const missed = missedOf(read);
    AxlInputStream stream(missed.empty() ? std::string() : rw.writtenText());
    AxlObjPtr const text = AxcRead(stream);
    AxlObjPtr const changed = writtenOut(text.get(), missed);
    if (text->isPair() && axWrittenItems(text.get()) != axWrittenItems(changed.get()))
    {
        rw.getSelf(changed, AxReaderWriter::nullFilenames(), AxReaderWriter::nullVariableReference());
    }
}
