#include "AxTypeItem.h"

#include "AxDiagnostic.h"
#include "AxFaultAt.h"
#include "AxReadFrame.h"
#include "AxlObj.h"

namespace
{
AxlObj const* theCell = nullptr;
}

namespace AxTypeItem
{
void write(std::string& out, int indent, char const* head, AxString const& type)
{
    out += '\n';
    AxReaderWriter::putIndent(out, indent + 1);
    out += '(';
    out += head;
    out += " \"";
    out += type.string();
    out += "\")";
}

void check(AxlObj const* item, char const* head)
{
    if (item->car()->text() == head)
    {
        return;
    }
    AxDiagnostic finding;
    finding.severity = AxSeverity::Warning;
    finding.code = "type-item-missing";
    AxlObj const* const place = item->line() != 0 ? item : AxReadFrame::list();
    finding.line = place->line();
    finding.column = place->column();
    finding.path = AxReadFrame::path();
    finding.text = "the first item should be (" + std::string(head) + " ...) and is not read";
    AxDiagnostics::report(std::move(finding));
}

AxlObj const* typeCell(AxlObjPtr const& expression)
{
    return expression.get()->cdr()->car()->cdr()->car();
}

AxlObj const* placeOf(AxlObj const* typeCell, AxlObjPtr const& expression)
{
    return typeCell->line() != 0 ? typeCell : expression.get();
}

AxDiagnostic creationFailed(AxlObj const* cell, std::string_view type, std::string_view reason)
{
    return axFaultAt(AxSeverity::Error, "creation-failed", cell ? cell : AxlObj::nilCell(),
                     "cannot create an element of type \"" + std::string(type) + "\": " + std::string(reason));
}

void reportCreationFailed(AxlObj const* cell, std::string_view type, std::string_view reason)
{
    AxDiagnostics::report(creationFailed(cell, type, reason));
}

Scope::Scope(AxlObj const* cell) : myOuter(theCell)
{
    theCell = cell;
}

Scope::~Scope()
{
    theCell = myOuter;
}

AxlObj const* Scope::cell()
{
    return theCell;
}
} // namespace AxTypeItem
