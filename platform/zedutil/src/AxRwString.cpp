#include "AxRwString.h"

#include "AxPlainValue.h"
#include "AxRwVariableBindings.h"
#include "AxlObj.h"
#include "AxlPrint.h"

namespace
{
std::string unquoted(std::string_view written)
{
    std::string out;
    for (std::size_t i = 1; i + 1 < written.size(); ++i)
    {
        if (written[i] == '\\' && (written[i + 1] == '"' || written[i + 1] == '\\'))
        {
            ++i;
        }
        out += written[i];
    }
    return out;
}
} // namespace

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
    if (items->tag() != AxlObj::Tag::Pair || items->car()->tag() == AxlObj::Tag::Pair)
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

void AxRwString::bindVariables(AxBindingsList const& bindings)
{
    std::string const written = isVariableReference() ? referenceText() : std::string();
    if (written.empty() || written.front() != '"')
    {
        AxReaderWriter::bindVariables(bindings);
        return;
    }
    bool isComplete = true;
    myValue = AxString(AxRwVariableBindings::expand(unquoted(written), bindings, &isComplete));
    keepReference(AxReaderWriter::variableName(), written, isComplete);
}
