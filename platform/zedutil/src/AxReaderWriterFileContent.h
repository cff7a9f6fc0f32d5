#pragma once

#include "AxReaderWriterFile.h"

#include <functional>

/// What a file member knows of the object that its file is read into.
struct AxReaderWriterFile::Content
{
    void takeMark()
    {
        note();
        isChangedForSure = false;
        hasDigest = false;
    }
    bool isChanged()
    {
        // A class of the host's may tell a time of its own.
        bool const isAsNoted = object->latestStamp() <= mark && object->recordUpdateTime() == time;
        if (isChangedForSure || isAsNoted)
        {
            return isChangedForSure;
        }
        if (!hasDigest || digest != digestNow())
        {
            return true;
        }
        note();
        return false;
    }
    void note()
    {
        mark = AxReaderWriter::ourStamp; // not before any stamp that was given, and before all others
        time = object->recordUpdateTime();
    }
    /// The state of the member that this one is copied from. A content with a keyword of its own is copied apart from
    /// its file member, which cannot be told from an edit but by what is in it.
    void carryChange(Content& other, bool otherIsChanged, bool isCopiedApart)
    {
        isChangedForSure = otherIsChanged;
        if (!otherIsChanged && isCopiedApart)
        {
            if (!other.hasDigest)
            {
                other.digest = other.digestNow();
                other.hasDigest = true;
            }
            digest = other.digest;
            hasDigest = true;
        }
    }
    std::size_t digestNow() const { return std::hash<std::string>()(object->writtenText(true)); }
    /// Tells that what the text gave in place does not count beside the file's name, and lets the record that is read
    /// keep it.
    void giveWay(AxReaderWriterFile const& member, AxlObj const* place) const;

    AxReaderWriter* object = nullptr;
    bool isEnabled = true;
    bool isChangedForSure = false;
    bool hasDigest = false;
    std::size_t digest = 0;
    std::uint32_t mark = 0;
    double time = 0.0;
    AxFilename found;           ///< the file read last
    AxFilenameList searchPaths; ///< of a name that waits for its variables
};
