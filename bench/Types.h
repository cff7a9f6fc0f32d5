#pragma once

#include "AxObjectType.h"

#include <algorithm>
#include <string>
#include <vector>

/// Different object types, exact ones and patterns, in an order without meaning.
struct Types
{
    std::vector<AxObjectType> exact;
    std::vector<AxObjectType> patterns;

    std::size_t size() const { return exact.size() + patterns.size(); }
    template <class Use>
    void forEach(Use const& use) const
    {
        std::for_each(exact.begin(), exact.end(), use);
        std::for_each(patterns.begin(), patterns.end(), use);
    }
};

/// A tree of `count` types, one in ten of them a pattern that leaves the last fields open. Always the same.
Types generateTypes(std::size_t count);
/// The same, but that patterns leave any fields open, in `numShapes` different ways.
Types generateTypes(std::size_t count, std::size_t numShapes);
/// One type a line, seven fields or eight, joined by ":"; what follows a tab does not count. Throws std::runtime_error.
Types readTypes(std::string const& file);
