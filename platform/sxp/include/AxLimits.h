#pragma once

#include <cstddef>

/// Bounds on what is read. Text beyond a bound is reported with its place and refused; it never exhausts the process.
struct AxLimits
{
    /// Lists open at one time in parameter text.
    unsigned cellNesting = 1000;
    /// Elements open at one time in XML.
    unsigned xmlDepth = 256;
    /// Attributes of one XML element.
    unsigned xmlAttributes = 10000;
    /// Files that name each other in one chain.
    unsigned fileChain = 32;
    /// Variables that are made of each other in one chain, and uses of variables in one text; beyond, and when the text
    /// has grown to the size of a token, further ones are left as they stand.
    unsigned variableChain = 32;
    unsigned variableCount = 10000;
    /// Bytes of one file.
    std::size_t fileSize = std::size_t(1) << 30;
    /// Bytes of one token: an atom, a string, a run of XML text.
    std::size_t tokenSize = std::size_t(16) << 20;
};

inline constexpr AxLimits axLimits{};
