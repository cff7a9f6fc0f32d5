#pragma once

#include "AxlObj.h"

/// Whether `items`, all that follows a name, are a variable reference in place of the value: `$name`,
/// `($name default...)` or a text with "$(".
inline bool axIsReference(AxlObj const* items)
{
    AxlObj const* const first = items->car();
    AxlObj const* const variable = first->cdr()->isPair() ? first->car() : first;
    return !items->cdr()->isPair() && (variable->isReference() || variable->hasEmbeddedReference());
}
