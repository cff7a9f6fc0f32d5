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
    /// Files read within one text because files that it names name them; 100 more for each that it names itself.
    unsigned fileLoads = 10000;
    /// Variables that name each other in one chain, and the records open at one time where names may lead to more.
    unsigned variableChain = 32;
    unsigned recordNesting = 500;
    /// Variables put in within one text because variables that it names name them; 100 more for each of those.
    unsigned variableUses = 1000;
    /// Bytes of one file.
    std::size_t fileSize = std::size_t(1) << 30;
    /// Bytes of one token: an atom, a string, a run of XML text.
    std::size_t tokenSize = std::size_t(16) << 20;
};

inline constexpr AxLimits axLimits{};
