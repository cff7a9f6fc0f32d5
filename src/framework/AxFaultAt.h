#pragma once

#include "AxDiagnostic.h"

class AxlObj;

/// What is wrong at `cell` of the text that is being read.
AxDiagnostic axFaultAt(AxSeverity severity, char const* code, AxlObj const* cell, std::string text);
