#pragma once

#include "AxRwProperties.h"

/// The variables of a script are named, typed values.
using AxRwScriptVariablesList = AxRwProperties;
