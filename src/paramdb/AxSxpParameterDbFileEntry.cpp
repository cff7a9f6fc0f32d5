#include "AxSxpParameterDbFileEntry.h"

AxSxpParameterDbFileEntry::~AxSxpParameterDbFileEntry() = default;

void AxSxpParameterDbFileEntry::setObjectType(AxObjectType const& type)
{
    myObjectType = type;
    myObjectType.setValueSpecified(true, false);
}

void AxSxpParameterDbFileEntry::setFilename(AxFilename const& file)
{
    myFilename = file.string();
    myFilename.setValueSpecified(true, false);
}

void AxSxpParameterDbFileEntry::setPlace(unsigned line, unsigned column)
{
    myLine = line;
    myColumn = column;
}

void AxSxpParameterDbFileEntry::setElementPlace(unsigned line, unsigned column)
{
    myElementLine = line;
    myElementColumn = column;
}

bool AxSxpParameterDbFileEntry::isReadable() const
{
    if (!myObjectType.valueSpecified())
    {
        return false;
    }
    if (!myFilename.valueSpecified())
    {
        for (auto const& [after, text] : keptItems())
        {
            if (text.starts_with("(filename"))
            {
                return false;
            }
        }
    }
    return true;
}

void AxSxpParameterDbFileEntry::settleFilename(AxBindingsList const& bindings)
{
    if (!myFilename.isVariableReference())
    {
        return;
    }
    AxString const before = myFilename.value();
    bool const wasBound = myFilename.variableIsBound();
    myFilename.unbindVariable();
    myFilename.bindVariables(bindings);
    if (!(myFilename.value() == before) || myFilename.variableIsBound() != wasBound)
    {
        setFilename(AxFilename(before));
    }
}

bool AxSxpParameterDbFileEntry::hasMoreThanItsValues() const
{
    return myFilename.isVariableReference() || myObjectType.isVariableReference() || !keptItems().empty();
}
