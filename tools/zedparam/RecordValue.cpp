#include "RecordValue.h"

#include "AxComponentSystemDefinition.h"
#include "AxComponentSystemDescriptor.h"
#include "AxNumberText.h"
#include "AxReaderWriterFile.h"
#include "AxRwInt.h"
#include "AxRwList.h"
#include "AxRwProperty.h"
#include "AxRwReal.h"
#include "AxRwUnsigned.h"
#include "AxlFunctions.h"
#include "AxlPrint.h"
#include "RecordText.h"
#include "RecordWalk.h"

namespace
{
/// A property is its value.
AxReaderWriter& valueOf(AxReaderWriter& rw)
{
    auto const* property = dynamic_cast<AxRwProperty const*>(&rw);
    return property != nullptr && property->rwValue() != nullptr ? *property->rwValue() : rw;
}

void appendAtomsIn(AxlObj const& items, std::vector<Atom>& atoms)
{
    for (AxlObj const* rest = &items; rest->isPair(); rest = rest->cdr())
    {
        AxlObj const& cell = *rest->car();
        if (cell.isPair())
        {
            appendAtomsIn(cell, atoms);
        }
        else if (!cell.nil())
        {
            atoms.push_back({cell.isNumber(), cell.flonum(), cell.pname().string()});
        }
    }
}
} // namespace

bool hasMembers(AxReaderWriter const& rw)
{
    AxReaderWriterRegistry const* registry = rw.registryIfAny();
    return registry != nullptr && registry->count() != 0;
}

bool isLeaf(AxReaderWriter const& rw)
{
    if (rw.isValue())
    {
        return true;
    }
    if (auto const* file = dynamic_cast<AxReaderWriterFile const*>(&rw))
    {
        return !file->filename().isNull() || file->content() == nullptr || !file->content()->isDue();
    }
    return !hasMembers(rw) && dynamic_cast<AxRwList const*>(&rw) == nullptr;
}

bool numberIn(AxReaderWriter const& rw, double& value)
{
    if (auto const* real = dynamic_cast<AxRwReal const*>(&rw))
    {
        value = real->value();
        return true;
    }
    if (auto const* integer = dynamic_cast<AxRwInt const*>(&rw))
    {
        value = integer->value();
        return true;
    }
    if (auto const* number = dynamic_cast<AxRwUnsigned const*>(&rw))
    {
        value = number->value();
        return true;
    }
    return false;
}

AxlObjPtr ownItems(AxReaderWriter& rw)
{
    std::string text = "(";
    rw.putData(text, 0);
    tellType(rw, text);
    AxlInputStream stream(text + ")");
    return AxcRead(stream);
}

Atom atomOf(double number)
{
    Atom atom{true, number, {}};
    axAppendReal(atom.text, number);
    return atom;
}

void appendAtoms(RecordWalk const& at, std::vector<Atom>& atoms)
{
    if (at.ownItem() != nullptr)
    {
        appendAtomsIn(*at.ownItem()->cdr(), atoms);
        return;
    }
    AxReaderWriter& value = valueOf(at.rw());
    double number = 0.0;
    if (numberIn(value, number))
    {
        atoms.push_back(atomOf(number));
    }
    else if (isLeaf(value))
    {
        appendAtomsIn(*ownItems(value), atoms);
    }
}

bool unitOf(RecordWalk const& at, std::string& unit)
{
    return unitOf(at.rw(), at.keyword().view(), unit);
}

bool unitOf(AxReaderWriter const& rw, std::string_view keyword, std::string& unit)
{
    if (AxKeyword const* const description = rw.description())
    {
        unit = description->unit;
        return true;
    }
    // The parameters of a component system are declared, with their units, in its definition.
    AxReaderWriterRegistry const* const registry = rw.parentRegistry();
    auto const* system =
        registry != nullptr ? dynamic_cast<AxComponentSystemDescriptor const*>(registry->owner()) : nullptr;
    if (system != nullptr)
    {
        for (AxSystemParameterData const* parameter : system->systemDefinition()->metaData().paramterDataList())
        {
            if (parameter->parameterName().string() == keyword)
            {
                unit = parameter->sourceUnits().string();
                return !unit.empty();
            }
        }
    }
    return false;
}

std::string valueText(RecordWalk const& at)
{
    std::string text;
    if (at.ownItem() != nullptr)
    {
        for (AxlObj const* rest = at.ownItem()->cdr(); rest->isPair(); rest = rest->cdr())
        {
            text += text.empty() ? "" : " ";
            axAppendCell(text, rest->car());
        }
    }
    else if (AxReaderWriter& value = valueOf(at.rw()); isLeaf(value))
    {
        value.putData(text, 0);
    }
    return text;
}
