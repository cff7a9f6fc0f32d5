#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "AxEnvObject.h"
#include "TextTree.h"

class AxReaderWriter;

/// Elements of some lists are headed by what kind of thing they are, and have their own name in a member, such as the
/// "fuel" of (real-resource (resource-name "fuel") ...). Each tells that name; empty for what has none, and for
/// components, which are headed by their name.
std::string ownName(TextItem element);
std::string ownName(AxEnvObject const& element);
std::string ownName(AxReaderWriter const& element);

/// An element as a path may name it.
struct NamedElement
{
    std::string head;
    std::string own; ///< its own name
};
/// Why a step that may mean each of the elements means none, and how each would be named.
std::string ambiguous(std::string const& name, std::vector<NamedElement> const& elements);
/// Why `name[position]` means none of `count` elements.
std::string absent(std::string const& name, std::size_t position, std::size_t count);
