#include "Source.h"

#include <exception>
#include <utility>

#include "AxDiagnostic.h"
#include "AxFilename.h"
#include "AxReadWholeFile.h"
#include "AxReaderWriter.h"
#include "AxlFunctions.h"
#include "ReadFile.h"

namespace
{
bool matches(SourceStep const& step, AxlObj const& item)
{
    AxlObj const& head = *item.car();
    return item.isPair() &&
           (step.keyword.isNull() || head.text() == step.keyword.view() || step.rw->hasAlias(head.symbol()));
}

bool isLong(AxlObj const* items)
{
    std::size_t count = 0;
    while (items->isPair() && count < NameIndex<AxlObj const>::theShortest)
    {
        items = items->cdr();
        ++count;
    }
    return count == NameIndex<AxlObj const>::theShortest;
}

/// The first cell, each before what is in it, for which `accept` answers a cell: that cell.
template <class Accept>
AxlObj const* firstOf(AxlObj const& cell, Accept const& accept)
{
    AxlObj const* found = accept(cell);
    for (AxlObj const* rest = &cell; found == nullptr && rest->isPair(); rest = rest->cdr())
    {
        found = firstOf(*rest->car(), accept);
    }
    return found;
}
} // namespace

Source::Source(std::string const& file)
{
    std::string text;
    myIsRead = axReadWholeFile(AxFilename(file), text, myError);
    parse(std::move(text));
}

Source Source::again(std::string const& file)
{
    Source source{AxlObjPtr()};
    std::string text;
    source.myIsRead = readAgain(file, text);
    source.parse(std::move(text));
    return source;
}

void Source::parse(std::string text)
{
    AxlInputStream stream(std::move(text));
    try
    {
        myExpression = AxcRead(stream, {}, {.closeOpenLists = true}).expr;
    }
    catch (std::exception const&) // told when the record was read
    {
        myExpression = {};
    }
}

AxlObj const* Source::value(std::span<SourceStep const> path) const
{
    return path.empty() ? nullptr : valueBelow(myExpression->cdr(), path);
}

AxlObj const* Source::valueBelow(AxlObj const* items, std::span<SourceStep const> path) const
{
    SourceStep const& step = path.front();
    auto const valueIn = [&](AxlObj const& item)
    {
        return path.size() > 1        ? valueBelow(item.cdr(), path.subspan(1))
               : item.cdr()->isPair() ? item.cdr()->car()
                                      : &item;
    };
    bool const isOfOneName = !step.keyword.isNull() && step.rw->aliases().empty();
    if (isOfOneName && isLong(items))
    {
        auto const addAll = [&](auto const& add)
        {
            for (AxlObj const* rest = items; rest->isPair(); rest = rest->cdr())
            {
                add(rest->car()->car()->text(), rest->car());
            }
        };
        std::vector<AxlObj const*> const& named = myByName.find(items, step.keyword.view(), addAll);
        if (step.occurrence != SourceStep::theLast)
        {
            auto const wanted = static_cast<std::size_t>(step.occurrence);
            return wanted < named.size() ? valueIn(*named[wanted]) : nullptr;
        }
        AxlObj const* value = nullptr;
        for (auto item = named.rbegin(); value == nullptr && item != named.rend(); ++item)
        {
            value = valueIn(**item);
        }
        return value;
    }
    AxlObj const* found = nullptr;
    int occurrence = 0;
    for (; items->isPair(); items = items->cdr())
    {
        AxlObj const& item = *items->car();
        if (matches(step, item) && (step.occurrence == SourceStep::theLast || occurrence++ == step.occurrence))
        {
            AxlObj const* const value = valueIn(item);
            found = value != nullptr ? value : found;
        }
    }
    return found;
}

AxlObj const* Source::reference(std::string_view variable) const
{
    std::string const symbol = "$" + std::string(variable);
    std::string const embedded = "$(" + std::string(variable) + ")";
    return firstOf(*myExpression,
                   [&](AxlObj const& cell) -> AxlObj const*
                   {
                       bool const isMeant =
                           (cell.isSymbol() && cell.text() == symbol) ||
                           (cell.hasEmbeddedReference() && cell.text().find(embedded) != std::string_view::npos);
                       return isMeant ? &cell : nullptr;
                   });
}

AxlObj const* Source::find(std::function<bool(AxlObj const& list)> const& accept) const
{
    return firstOf(*myExpression,
                   [&](AxlObj const& cell) -> AxlObj const*
                   { return cell.isPair() && accept(cell) ? &cell : nullptr; });
}

AxlObj const* Source::item(std::string_view head, std::string_view word) const
{
    if (!myByHead)
    {
        myByHead.emplace();
        forEachList(
            [this](AxlObj const& list) {
                myByHead->try_emplace({list.car()->text(), list.cdr()->car()->text()}, list.cdr()->car());
            });
    }
    auto const found = myByHead->find({head, word});
    return found != myByHead->end() ? found->second : nullptr;
}

AxlObj const* Source::listWith(std::string_view second, std::string_view third) const
{
    if (!myByWords)
    {
        myByWords.emplace();
        forEachList(
            [this](AxlObj const& list)
            {
                AxlObj const* const rest = list.cdr();
                myByWords->try_emplace({rest->car()->text(), rest->cdr()->car()->text()}, &list);
            });
    }
    auto const found = myByWords->find({second, third});
    return found != myByWords->end() ? found->second : nullptr;
}

void Source::forEachList(std::function<void(AxlObj const& list)> const& visit) const
{
    firstOf(*myExpression,
            [&](AxlObj const& cell) -> AxlObj const*
            {
                if (cell.isPair())
                {
                    visit(cell);
                }
                return nullptr;
            });
}

void Source::setPlace(AxDiagnostic& finding, AxlObj const* cell)
{
    if (cell != nullptr)
    {
        finding.line = cell->line();
        finding.column = cell->column();
    }
}
