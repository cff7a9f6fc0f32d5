#pragma once

#include "AxRecordOf.h"
#include "AxRwObjectType.h"
#include "AxRwString.h"

class AxZedObjectParameters;

/// One entry of a parameter database file: a type and the file of its record.
class ZEDOBJPARAM_API AxSxpParameterDbFileEntry : public AxRecordOf<AxSxpParameterDbFileEntry, "parameter-entry">
{
public:
    using AxRecordOf::AxRecordOf;
    using AxRecordOf::operator=;
    ~AxSxpParameterDbFileEntry() override;

    AxObjectType const& objectType() const { return myObjectType.value(); }
    void setObjectType(AxObjectType const& type);
    /// With its variables replaced.
    AxFilename filename() const { return AxFilename(myFilename.value()); }
    void setFilename(AxFilename const& file);
    /// Not part of the text: whether the type is a pattern meant to serve many types.
    bool typeIsMatchType() const { return myTypeIsMatchType; }
    void setTypeIsMatchType(bool isMatchType) { myTypeIsMatchType = isMatchType; }
    /// Not part of the text and not owned: the record while it is written.
    AxZedObjectParameters* parameters() const { return myParameters; }
    void setParameters(AxZedObjectParameters* parameters) { myParameters = parameters; }

    /// Where the entry begins in the text it was read from; zeros for one that was made otherwise.
    unsigned line() const { return myLine; }
    unsigned column() const { return myColumn; }
    void setPlace(unsigned line, unsigned column);
    /// Where the element begins that the entry stands for, in the entity file that it names; zeros for others.
    unsigned elementLine() const { return myElementLine; }
    unsigned elementColumn() const { return myElementColumn; }
    void setElementPlace(unsigned line, unsigned column);

    /// Whether the text gave a type and, if it gave a file name, one that can be read.
    bool isReadable() const;
    /// Drops the variables of the file name when, with these sets, they would not give the name that it has.
    void settleFilename(AxBindingsList const& bindings);
    /// Whether the text holds variables or items that were not understood.
    bool hasMoreThanItsValues() const;

private:
    AxRwObjectType myObjectType{{"object-type", "", "The type or pattern that the record serves."}, registry()};
    AxRwString myFilename{{"filename", "", "The file that holds the record."}, registry()};
    bool myTypeIsMatchType = false;
    AxZedObjectParameters* myParameters = nullptr;
    unsigned myLine = 0;
    unsigned myColumn = 0;
    unsigned myElementLine = 0;
    unsigned myElementColumn = 0;
};
