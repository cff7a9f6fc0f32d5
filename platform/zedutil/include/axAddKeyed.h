#pragma once

#include "AxRwList.h"

#include <memory>
#include <string_view>

/// Answers the text by which a list knows an element.
using AxElementKey = std::string_view (*)(AxReaderWriter const& element);

/// Adds `element` as the last of `list`, which owns its elements; the first one of the same key before it is deleted.
/// While the list is being read this takes constant time, so that reading is linear in the length of the list.
ZEDOBJPARAM_API void axAddKeyed(AxRwList& list, AxReaderWriter* element, AxElementKey keyOf);

/// While it lives, elements are added to that list as fast as while the list is being read.
class ZEDOBJPARAM_API AxKeyedAdding
{
public:
    explicit AxKeyedAdding(AxRwList& list);
    AxKeyedAdding(AxKeyedAdding const&) = delete;
    AxKeyedAdding& operator=(AxKeyedAdding const&) = delete;
    ~AxKeyedAdding();

private:
    std::unique_ptr<AxReadFrame> myFrame;
};

/// The key of lists that know their elements by name.
inline std::string_view axNameKey(AxReaderWriter const& element)
{
    return element.AxReaderWriter::name().view();
}
