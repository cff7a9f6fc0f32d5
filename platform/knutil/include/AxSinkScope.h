#pragma once

#include <memory>
#include <string>

#include "AxExport.h"
#include "AxStreams.h"

/// Replaces a stream's sink for the life of this object.
class ZEDOBJPARAM_API AxSinkScope
{
public:
    /// Collects what is written; see `text()`.
    explicit AxSinkScope(AxLogStream& stream);
    AxSinkScope(AxLogStream& stream, AxLogStream::Sink sink);
    AxSinkScope(AxSinkScope const&) = delete;
    AxSinkScope& operator=(AxSinkScope const&) = delete;
    ~AxSinkScope();

    /// What was collected so far, an unfinished line included.
    std::string const& text();
    void clear();

private:
    AxLogStream& myStream;
    std::string myText;
    AxLogStream::Sink myPrevious;
};
