#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <string>
#include <vector>

#include "AxEnvObject.h"
#include "AxSymbolString.h"
#include "PathText.h"
#include "TextTree.h"

class AxReaderWriter;
class AxRwList;

/// Elements of some lists are headed by what kind of thing they are, and have their own name in a member, such as the
/// "fuel" of (real-resource (resource-name "fuel") ...), or are for an object type, whose fields joined by ":" call
/// them. Each tells that; empty for what has none, and for components, which are headed by their name.
std::string ownName(TextItem element);
std::string ownName(AxEnvObject const& element);
std::string ownName(AxReaderWriter& element);

/// Whether both are the same text or object type.
bool isSameName(std::string const& own, std::string const& name);

/// The keyword of an element; of one without a name of its own what it writes in front.
AxSymbolString headOf(AxReaderWriter& element);

/// The elements of one list that a step of a path may mean, its position aside: those of that head, and where none has
/// it those that call themselves so. A member is called by its keyword alone: `own` is to answer nothing for it.
template <class Element, class IsHeaded, class Own>
std::vector<Element> elementsMeant(KeywordStep const& step, std::vector<Element> const& elements,
                                   IsHeaded const& isHeaded, Own const& own)
{
    std::vector<Element> meant;
    std::ranges::copy_if(elements, std::back_inserter(meant), isHeaded);
    if (!step.identity.empty())
    {
        std::erase_if(meant, [&](Element const& element) { return !isSameName(own(element), step.identity); });
    }
    else if (meant.empty())
    {
        std::ranges::copy_if(elements, std::back_inserter(meant),
                             [&](Element const& element) { return isSameName(own(element), step.name); });
    }
    return meant;
}

/// The same of what lists have read.
std::vector<AxReaderWriter*> elementsMeant(KeywordStep const& step, std::vector<AxReaderWriter*> const& elements);

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
