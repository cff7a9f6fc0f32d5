#include "AxRwString.h"

#include "AxPlainValue.h"
#include "AxRwVariableBindings.h"
#include "AxlObj.h"
#include "AxlPrint.h"

AxRwString::~AxRwString() = default;

void AxRwString::start(char const* initial)
{
    std::string_view const text(initial ? initial : "");
    myValue = AxSharedText(text);
    void const* const id = AxSymbolString(text).id();
    noteInitialValue(&id, sizeof id);
}

AxRwString& AxRwString::operator=(AxSymbolString value)
{
    return *this = value.string();
}

AxRwString& AxRwString::operator=(AxString const& value)
{
    setValue(value);
    return *this;
}

AxRwString& AxRwString::operator=(char const* value)
{
    return *this = AxString(value);
}

bool AxRwString::readValue(AxlObj const*& items, AxString& value)
{
    if (!items || items->tag() != AxlObj::Tag::Pair || items->car()->tag() == AxlObj::Tag::Pair)
    {
        return false;
    }
    AxlObj const* const cell = items->car();
    value = cell->tag() == AxlObj::Tag::Number ? cell->pname() : AxString(cell->text());
    items = items->cdr();
    return true;
}

void AxRwString::writeValue(std::string& out, AxString const& value)
{
    AxTextRoom room(out);
    room.put(AxPlainValue::writeText(room.take(AxPlainValue::longestWritten(value.string())), value.string()));
}

AxlObjPtr AxRwString::getData(AxlObjPtr const& items, AxFilenameList const& files, AxBindingsList const& bindings)
{
    AxlObj const* const cell = items->car();
    if (cell->tag() != AxlObj::Tag::String || !cell->hasEmbeddedReference())
    {
        return AxRwValueOf::getData(items, files, bindings);
    }
    bool isComplete = true;
    AxSymbolString variable;
    myValue = AxString(AxRwVariableBindings::expand(cell->text(), bindings, &isComplete, &variable));
    if (!variable.isNull())
    {
        std::string written;
        axAppendCell(written, cell);
        keepReference(variable, std::move(written), isComplete);
    }
    return AxlObjPtr(items->cdr());
}

void AxRwString::putData(std::string& out, int)
{
    writeValue(out, myValue);
}
