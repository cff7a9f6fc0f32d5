#include "TableQuery.h"

#include <algorithm>
#include <cstddef>

#include "AxAmmoSelectTable.h"
#include "AxDmgMunitionTable.h"
#include "AxNumberText.h"
#include "AxPrbTableRangeDeterminant.h"
#include "AxRangeProbabilityTable.h"
#include "AxTargetPriorityList.h"
#include "MunitionText.h"

namespace
{
std::string real(double value)
{
    std::string text;
    axAppendReal(text, value);
    return text;
}

/// The table's own look-up, which answers the element.
struct RangeTable : AxRangeProbabilityTable
{
    using AxRangeProbabilityTable::lookupDetectProbEntry;
    static AxRangeProbEntry const* find(AxRangeProbabilityTable const& table, AxEntityType const& type)
    {
        auto const lookUp = &RangeTable::lookupDetectProbEntry;
        return static_cast<AxRangeProbEntry const*>(element((table.*lookUp)(type)));
    }
};

std::size_t indexIn(AxRwList const& list, AxReaderWriter const* element)
{
    std::size_t index = 0;
    for (AxListItem const* item = list.first(); item != nullptr && AxRwList::element(item) != element;
         item = item->next())
    {
        ++index;
    }
    return index;
}

/// The text of an element; a nil cell when it has none.
AxlObj const& textOf(AxlObj const& table, AxRwList const& list, AxReaderWriter const* element,
                     bool haveDeterminants = false)
{
    std::vector<AxlObj const*> const texts = elementTexts(table, haveDeterminants);
    std::size_t const index = indexIn(list, element);
    return index < texts.size() ? *texts[index] : *AxlObj::nilCell();
}

class TableQuery
{
public:
    TableQuery(TableFile const& table, TableQuestion const& question) : myTable(table), myQuestion(question) {}

    TableAnswer ask()
    {
        switch (myTable.kind())
        {
        case TableKind::Probabilities:
            askProbabilities();
            break;
        case TableKind::Damage:
            askDamage(myTable.as<AxDmgSurfaceTable>(), myTable.text(), myTable.file());
            break;
        case TableKind::Munitions:
            askMunitions();
            break;
        case TableKind::Ammunition:
            askAmmunition();
            break;
        case TableKind::Priorities:
            askPriorities();
            break;
        }
        return std::move(myAnswer);
    }

private:
    void askProbabilities()
    {
        auto const& table = myTable.as<AxRangeProbabilityTable>();
        AxRangeProbEntry const* const entry = RangeTable::find(table, *myQuestion.type);
        if (entry == nullptr)
        {
            missType();
            return;
        }
        AxlObj const& text = textOf(myTable.text(), table, entry, true);
        addEntry(entry->entityType(), text);
        table.getProbabilities(*myQuestion.type, *myQuestion.range, &myAnswer.outcomes);
        addRow(entry->determinant(), text, myTable.file());
    }

    void askDamage(AxDmgSurfaceTable const& table, AxlObj const& tableText, std::string const& file)
    {
        AxDmgSurfaceEntry const* const surface = table.lookupSurfaceEntry(*myQuestion.surface);
        if (surface == nullptr)
        {
            myAnswer.miss = "no surface \"" + *myQuestion.surface + "\"; there are:";
            for (AxDmgSurfaceEntry const* known : table)
            {
                myAnswer.miss += " " + known->AxReaderWriter::name().string().string();
            }
            return;
        }
        AxlObj const& surfaceText = textOf(tableText, table, surface);
        addStep("surface", *myQuestion.surface, surfaceText, file);
        for (AxDmgAngleOfIncidenceTable const* angle : *surface)
        {
            if (angle->angleOfIncidence() >= *myQuestion.angle)
            {
                AxlObj const& text = textOf(surfaceText, *surface, angle, true);
                TableStep& step = addStep("angle", "up to " + real(angle->angleOfIncidence()) + " degrees", text, file);
                step.numbers = {{"up-to-deg", angle->angleOfIncidence()}};
                table.getProbabilities(*myQuestion.surface, *myQuestion.angle, *myQuestion.range, &myAnswer.outcomes);
                addRow(angle->determinant(), text, file);
                return;
            }
        }
        myAnswer.miss = "no angle of \"" + *myQuestion.surface + "\" reaches " + real(*myQuestion.angle) + " degrees";
    }

    void askMunitions()
    {
        auto const& table = myTable.as<AxDmgMunitionTable>();
        AxDmgMunitionEntry* const entry = findMunition(table);
        if (entry == nullptr)
        {
            myAnswer.miss = "no entry is for that munition";
            return;
        }
        AxlObj const& text = textOf(myTable.text(), table, entry);
        TableStep& step = addStep("munition", munitionText(entry->munition()), text, myTable.file());
        step.match = entry->munition() == *myQuestion.munition ? "exact" : "pattern";

        char const* const keyword = myQuestion.isCollateral ? "collateral-damage-file" : "direct-damage-file";
        auto const* const file = dynamic_cast<AxReaderWriterFile const*>(entry->registry()->lookup(keyword));
        std::string const found = file != nullptr ? file->foundFilename().native() : "";
        AxDmgSurfaceTable const& damage = myQuestion.isCollateral ? entry->collateralDamage() : entry->directDamage();
        if (found.empty())
        {
            askDamage(damage, itemText(text, keyword), myTable.file());
        }
        else if (std::unique_ptr<TableFile> const outside = TableFile::open(found))
        {
            askDamage(damage, outside->text(), found);
        }
    }

    /// Seven numbers are asked as they are and, when nothing answers, as an individual entity.
    AxDmgMunitionEntry* findMunition(AxDmgMunitionTable const& table)
    {
        AxDmgMunitionEntry* const entry = table.lookupMunitionEntry(*myQuestion.munition);
        AxObjectType type = myQuestion.munition->munitionType();
        if (entry != nullptr || type.isNull() || type.superType() != 0)
        {
            return entry;
        }
        constexpr int theIndividualEntity = 1;
        type.setSuperType(theIndividualEntity);
        myQuestion.munition->setMunitionType(type);
        return table.lookupMunitionEntry(*myQuestion.munition);
    }

    void askAmmunition()
    {
        auto const& table = myTable.as<AxAmmoSelectTable>();
        AxSimMunitionList const& munitions = table.simMunitionList(*myQuestion.type);
        for (AxAmmoSelectEntry const* entry : table)
        {
            if (&entry->simMunitionList() == &munitions)
            {
                addEntry(entry->entityType(), textOf(myTable.text(), table, entry));
                myAnswer.munitions = munitions;
                return;
            }
        }
        missType();
    }

    void askPriorities()
    {
        auto const& table = myTable.as<AxTargetPriorityList>();
        AxListItem const* const item = table.lookupTargetPriorityEntry(*myQuestion.type);
        if (item == nullptr)
        {
            missType();
            return;
        }
        auto const* const entry = static_cast<AxTargetPriorityEntry const*>(AxRwList::element(item));
        addEntry(entry->entityType(), textOf(myTable.text(), table, entry));
        myAnswer.priority = entry->priority();
    }

    TableStep& addStep(char const* part, std::string value, AxlObj const& text, std::string const& file)
    {
        TableStep step;
        step.part = part;
        step.value = std::move(value);
        step.file = file;
        step.line = text.line();
        step.column = text.column();
        return myAnswer.steps.emplace_back(std::move(step));
    }

    void addEntry(AxEntityType const& type, AxlObj const& text)
    {
        TableStep& step = addStep("entry", type.string().string(), text, myTable.file());
        step.match = type == *myQuestion.type ? "exact" : "pattern";
    }

    void addRow(AxPrbRangeDeterminant const& determinant, AxlObj const& elementText, std::string const& file)
    {
        AxlObj const& rows = determinantText(elementText);
        auto const* const table = dynamic_cast<AxPrbTableRangeDeterminant const*>(&determinant);
        if (table == nullptr)
        {
            addStep("row", "polynomials of the range", rows, file);
            return;
        }
        double above = 0.0;
        AxPrbRangeTableEntry const* answering = nullptr;
        AxPrbRangeList const& list = table->rangeList();
        for (AxListItem const* item = list.first(); item != nullptr && answering == nullptr; item = item->next())
        {
            AxPrbRangeTableEntry const& row = *AxPrbRangeList::row(item);
            answering = row.range() >= *myQuestion.range ? &row : nullptr;
            above = answering == nullptr ? row.range() : above;
        }
        if (answering == nullptr)
        {
            TableStep& step = addStep("row", "none", rows, file);
            step.words = list.first() == nullptr
                             ? "there is no row"
                             : "beyond the last row, which reaches " + real(above) + " m, every outcome is 0";
            step.numbers = {{"reaches-m", above}};
            return;
        }
        TableStep& step = addStep("row", "up to " + real(answering->range()) + " m", rowText(rows, *answering), file);
        step.words = above > 0.0 ? "from above " + real(above) + " m" : "";
        step.numbers = {{"above-m", above}, {"up-to-m", answering->range()}};
    }

    /// Of rows of one range the last counts.
    static AxlObj const& rowText(AxlObj const& rows, AxPrbRangeTableEntry const& row)
    {
        AxlObj const* found = AxlObj::nilCell();
        for (AxlObj const* rest = rows.cdr(); rest->isPair(); rest = rest->cdr())
        {
            AxlObj const& range = *rest->car()->cdr()->car();
            found = range.isNumber() && range.flonum() == row.range() ? rest->car() : found;
        }
        return *found;
    }

    void missType() { myAnswer.miss = "no entry is for " + myQuestion.type->string().string(); }

    TableFile const& myTable;
    TableQuestion myQuestion;
    TableAnswer myAnswer;
};

struct Option
{
    char const* name;
    bool isNeeded;
    bool isGiven;
};

std::vector<Option> optionsOf(TableKind kind, TableQuestion const& question)
{
    bool const byType = kind != TableKind::Damage && kind != TableKind::Munitions;
    return {{"--type", byType, question.type.has_value()},
            {"--munition", kind == TableKind::Munitions, question.munition.has_value()},
            {"--surface", !byType, question.surface.has_value()},
            {"--angle", !byType, question.angle.has_value()},
            {"--range", !byType || kind == TableKind::Probabilities, question.range.has_value()}};
}

std::string joined(std::vector<Option> const& options, bool missing)
{
    std::vector<std::string> names;
    for (Option const& option : options)
    {
        if (option.isNeeded == missing && option.isGiven != missing)
        {
            names.emplace_back(option.name);
        }
    }
    std::string text;
    for (std::size_t i = 0; i < names.size(); ++i)
    {
        text.append(i == 0 ? "" : i + 1 == names.size() ? " and " : ", ").append(names[i]);
    }
    return text;
}
} // namespace

std::string missingOptions(TableKind kind, TableQuestion const& question)
{
    return joined(optionsOf(kind, question), true);
}

std::string idleOptions(TableKind kind, TableQuestion const& question)
{
    return joined(optionsOf(kind, question), false);
}

TableAnswer askTable(TableFile const& table, TableQuestion const& question)
{
    return TableQuery(table, question).ask();
}
