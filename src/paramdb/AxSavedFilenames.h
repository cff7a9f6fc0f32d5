#pragma once

#include "AxFilename.h"
#include "AxSxpParameterDb.h"

#include <vector>

class AxReaderWriterFile;

/// The names of files in records that are being saved to another directory: those that are relative to the file of the
/// record are named as they are found from its new place.
class AxSavedFilenames
{
public:
    explicit AxSavedFilenames(AxSxpParameterDb::CopyPairs const& copies) : myCopies(copies) {}

    /// How many names are another one now.
    std::size_t count() const { return myFormer.size(); }
    /// For the record of an entry that still has its former file name. `directory` is that of its new file.
    void settle(AxSxpParameterDbEntry const& entry, AxFilename const& directory);
    /// Gives all but the first `kept` their former names back.
    void takeBack(std::size_t kept = 0);

private:
    struct Former
    {
        AxReaderWriterFile* member;
        AxFilename name;
    };
    AxSxpParameterDb::CopyPairs const& myCopies;
    std::vector<Former> myFormer;
};
