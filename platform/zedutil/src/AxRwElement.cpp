#include "AxRwElement.h"

#include "AxNumberText.h"
#include "AxRwInt.h"
#include "AxRwObjectType.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxRwVariableBindings.h"
#include "AxlObj.h"
#include "AxlPrint.h"

bool AxRwElement<AxString>::read(AxlObj const*& items, AxString& value, AxEmbeddedReferences& references)
{
    AxlObj const* const cell = items->car();
    if (!cell->isString() || !cell->hasEmbeddedReference())
    {
        return AxRwString::readValue(items, value);
    }
    bool isComplete = true;
    AxSymbolString first;
    value = AxString(AxRwVariableBindings::expand(cell->text(), references.bindings, &isComplete, &first));
    references.complete = references.complete && isComplete;
    if (references.first.isNull())
    {
        references.first = first;
    }
    items = items->cdr();
    return true;
}

void AxRwElement<AxString>::write(std::string& out, AxString const& value)
{
    AxRwString::writeValue(out, value);
}

bool AxRwElement<double>::read(AxlObj const*& items, double& value, AxEmbeddedReferences&)
{
    return AxRwReal::readValue(items, value);
}

void AxRwElement<double>::write(std::string& out, double value)
{
    axAppendReal(out, value);
}

bool AxRwElement<AxObjectType>::read(AxlObj const*& items, AxObjectType& value, AxEmbeddedReferences&)
{
    return AxRwObjectType::readValue(items, value);
}

void AxRwElement<AxObjectType>::write(std::string& out, AxObjectType const& value)
{
    out += '(';
    AxRwObjectType::writeValue(out, value);
    out += ')';
}

bool AxRwElement<AxForceType>::read(AxlObj const*& items, AxForceType& value, AxEmbeddedReferences&)
{
    int number = 0;
    if (!AxRwInt::readValue(items, number))
    {
        return false;
    }
    value = static_cast<AxForceType>(number);
    return true;
}

void AxRwElement<AxForceType>::write(std::string& out, AxForceType value)
{
    axAppendInt(out, value);
}

std::string axWrittenItems(AxlObj const* items)
{
    std::string text;
    for (; items && items->isPair(); items = items->cdr())
    {
        if (!text.empty())
        {
            text += ' ';
        }
        axAppendCell(text, items->car());
    }
    return text;
}
