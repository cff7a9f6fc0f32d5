#pragma once

#include <new>
#include <utility>

/// `new T(arguments...)`, or null when there is no memory for it.
template <class T, class... Arguments>
T* axTryNew(Arguments&&... arguments)
{
    try
    {
        return new T(std::forward<Arguments>(arguments)...);
    }
    catch (std::bad_alloc const&)
    {
        return nullptr;
    }
}
