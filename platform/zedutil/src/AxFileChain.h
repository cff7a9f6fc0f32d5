#pragma once

#include "AxFileCells.h"
#include "AxReadBudget.h"

#include <string>
#include <vector>

/// The files that are being read because one names the next, from the outermost in.
class AxFileChain
{
public:
    /// Whether the file is being read already, so that reading it would not end.
    static bool holds(AxFileIdentity const& identity);
    /// Whether no further file may be read: the chain is too long, the records too deep in each other, or too many
    /// files were read for one text.
    static bool isFull();
    /// Whether a refusal is the first for its text, and so worth a line.
    static bool isFirstRefusal();
    /// The names from the outermost to `last`, joined by arrows.
    static std::string path(AxFilename const& last);

    /// The file is being read for the life of this object.
    AxFileChain(AxFilename const& file, AxFileIdentity const& identity);
    AxFileChain(AxFileChain const&) = delete;
    AxFileChain& operator=(AxFileChain const&) = delete;
    ~AxFileChain();

private:
    struct Link
    {
        std::string name;
        AxFileIdentity identity;
    };
    static std::vector<Link>& links();
    static AxReadBudget& budget();
};
