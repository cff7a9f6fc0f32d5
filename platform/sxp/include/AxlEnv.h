#pragma once

#include "AxExport.h"

/// The symbol space that cell operations are given. All symbols of a process live in one table, so it holds nothing.
class ZEDOBJPARAM_API AxlEnv
{
};
