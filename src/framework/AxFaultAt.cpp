#include "AxFaultAt.h"

#include "AxReadFrame.h"
#include "AxlObj.h"

AxDiagnostic axFaultAt(AxSeverity severity, char const* code, AxlObj const* cell, std::string text)
{
    AxDiagnostic fault;
    fault.severity = severity;
    fault.code = code;
    fault.file = AxSourceScope::currentFile().string().string();
    fault.line = cell->line();
    fault.column = cell->column();
    fault.path = AxReadFrame::path();
    fault.text = std::move(text);
    return fault;
}
