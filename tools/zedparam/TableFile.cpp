#include "TableFile.h"

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <optional>

#include "AxAmmoSelectTable.h"
#include "AxDiagnostic.h"
#include "AxDmgMunitionTable.h"
#include "AxRangeProbabilityTable.h"
#include "AxSourceScope.h"
#include "AxTargetPriorityList.h"
#include "AxlFunctions.h"
#include "Tables.h"

namespace
{
struct FoundTable
{
    TableKind kind;
    AxlObj const* text;
    std::string name;
};

AxlObj const& firstItem(AxlObj const& list)
{
    AxlObj const* rest = list.cdr();
    while (rest->isPair() && !rest->car()->isPair())
    {
        rest = rest->cdr();
    }
    return *rest->car();
}

/// What the list is, told by its first item.
std::optional<TableKind> kindOf(AxlObj const& list)
{
    AxlObj const& item = firstItem(list);
    std::string_view const head = item.car()->text();
    if (head == "entity-range")
    {
        return TableKind::Probabilities;
    }
    if (head == AxAmmoSelectTable::elementWord().view())
    {
        return TableKind::Ammunition;
    }
    if (head == AxTargetPriorityList::elementWord().view())
    {
        return TableKind::Priorities;
    }
    if (head == AxDmgMunitionEntry::elementWord().view())
    {
        return TableKind::Munitions;
    }
    bool const isSurface = firstItem(item).car()->text() == AxDmgAngleOfIncidenceTable::elementWord().view();
    return isSurface ? std::optional(TableKind::Damage) : std::nullopt;
}

/// What the files of a table directory are, whatever stands in them.
std::optional<TableKind> kindByName(std::filesystem::path const& file)
{
    std::string const extension = file.extension().string();
    return extension == ".hit" || extension == ".det" ? std::optional(TableKind::Probabilities)
           : extension == ".dmg"                      ? std::optional(TableKind::Damage)
           : extension == ".asl"                      ? std::optional(TableKind::Ammunition)
                                                      : std::nullopt;
}

std::unique_ptr<AxRwList> makeTable(TableKind kind)
{
    switch (kind)
    {
    case TableKind::Damage:
        return std::make_unique<AxDmgSurfaceTable>("table", nullptr);
    case TableKind::Munitions:
        return std::make_unique<AxDmgMunitionTable>("table", nullptr);
    case TableKind::Ammunition:
        return std::make_unique<AxAmmoSelectTable>("table", nullptr);
    case TableKind::Priorities:
        return std::make_unique<AxTargetPriorityList>("table", nullptr);
    case TableKind::Probabilities:
        break;
    }
    return std::make_unique<AxRangeProbabilityTable>("table", nullptr);
}

/// The tables in a list, itself or those inside, in the order of the text.
void findTables(AxlObj const& list, std::string const& name, std::vector<FoundTable>& found)
{
    if (std::optional<TableKind> const kind = kindOf(list))
    {
        found.push_back({*kind, &list, name});
        return;
    }
    for (AxlObj const* rest = list.cdr(); rest->isPair(); rest = rest->cdr())
    {
        if (rest->car()->isPair())
        {
            findTables(*rest->car(), name + "/" + std::string(rest->car()->car()->text()), found);
        }
    }
}

bool hasName(std::string_view table, std::string_view name)
{
    return table == name || table.ends_with("/" + std::string(name));
}

/// Null, after a line, when none or more than one is meant.
FoundTable const* chosenOf(std::vector<FoundTable> const& tables, std::string const& file, std::string const& name)
{
    auto const meant = [&](FoundTable const& table) { return name.empty() || hasName(table.name, name); };
    auto const first = std::ranges::find_if(tables, meant);
    if (first != tables.end() && std::find_if(first + 1, tables.end(), meant) == tables.end())
    {
        return &*first;
    }
    std::string const named = name.empty() ? "" : " \"" + name + "\"";
    if (tables.empty())
    {
        std::fprintf(stderr,
                     "%s:1:1: error: holds no table; expected a hit, detection, damage or ammunition table, or target "
                     "priorities\n",
                     file.c_str());
        return nullptr;
    }
    std::fprintf(stderr, "%s:1:1: error: holds %s table%s; choose one with --table:", file.c_str(),
                 first == tables.end() ? "no" : "more than one", named.c_str());
    for (FoundTable const& table : tables)
    {
        std::fprintf(stderr, " %s", table.name.c_str());
    }
    std::fputs("\n", stderr);
    return nullptr;
}

/// The list without the type name that stands behind the head of a script variable.
AxlObjPtr withoutType(AxlObj const& list)
{
    AxlObj const* const items = list.cdr();
    bool const hasType = items->isPair() && !items->car()->isPair();
    return hasType ? AxcCons(AxlObjPtr(list.car()), AxlObjPtr(items->cdr())) : AxlObjPtr(&list);
}

std::string_view headOf(AxlObj const& list)
{
    return list.car()->text();
}
} // namespace

char const* nameOf(TableKind kind)
{
    constexpr char const* theNames[] = {"a hit or detection table", "a damage table", "a munition table",
                                        "an ammunition table", "a list of target priorities"};
    return theNames[static_cast<int>(kind)];
}

std::unique_ptr<TableFile> TableFile::open(std::string const& file, std::string const& name)
{
    std::unique_ptr<TableFile> result(new TableFile(file));
    if (!result->mySource.isRead())
    {
        AxDiagnostics::report(
            {.code = "cannot-open",
             .file = file,
             .line = 1,
             .column = 1,
             .text = std::string("cannot open the file: ") + std::strerror(result->mySource.error())});
        return nullptr;
    }
    AxlObj const& text = result->mySource.expression();
    std::optional<TableKind> const whole = text.isPair() && kindOf(text) ? kindOf(text) : kindByName(file);
    if (whole || !text.isPair())
    {
        // The library reads the file itself, and tells what is wrong with it.
        result->myKind = whole.value_or(TableKind::Probabilities);
        result->myTable = makeTable(result->myKind);
        result->myText = &text;
        result->myName = headOf(text);
        return loadTable(file, *result->myTable) ? std::move(result) : nullptr;
    }
    std::vector<FoundTable> tables;
    findTables(text, std::string(headOf(text)), tables);
    FoundTable const* const chosen = chosenOf(tables, file, name);
    if (chosen == nullptr)
    {
        return nullptr;
    }
    result->myKind = chosen->kind;
    result->myTable = makeTable(chosen->kind);
    result->myText = chosen->text;
    result->myName = chosen->name;
    AxSourceScope const scope{AxFilename(file)};
    result->myTable->getSelf(withoutType(*chosen->text), {AxFilename(file).directory()},
                             AxReaderWriter::nullVariableReference());
    return result;
}

bool TableFile::isNamed(std::string_view name) const
{
    return name.empty() || hasName(myName, name);
}

AxlObj const& itemText(AxlObj const& list, std::string_view head)
{
    AxlObj const* rest = list.cdr();
    while (rest->isPair() && (!rest->car()->isPair() || headOf(*rest->car()) != head))
    {
        rest = rest->cdr();
    }
    return *rest->car();
}

AxlObj const& determinantText(AxlObj const& element)
{
    return *itemText(element, "range-determinant").cdr()->car();
}

std::vector<AxlObj const*> elementTexts(AxlObj const& table, bool haveDeterminants)
{
    std::vector<AxlObj const*> texts;
    for (AxlObj const* rest = table.cdr(); rest->isPair(); rest = rest->cdr())
    {
        std::string_view const determinant = headOf(determinantText(*rest->car()));
        bool const isKnown = determinant == "range-list" || determinant == "coefficients";
        if (rest->car()->isPair() && (isKnown || !haveDeterminants))
        {
            texts.push_back(rest->car());
        }
    }
    return texts;
}
