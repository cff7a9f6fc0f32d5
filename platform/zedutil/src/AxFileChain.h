#pragma once

#include "AxFileCells.h"

#include <string>
#include <vector>

/// The files that are being read because one names the next, from the outermost in.
class AxFileChain
{
public:
    /// Whether the file is being read already, so that reading it would not end.
    static bool holds(AxFileIdentity const& identity);
    static bool isFull();
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
};
