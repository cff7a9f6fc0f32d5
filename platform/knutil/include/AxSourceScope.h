#pragma once

#include "AxExport.h"
#include "AxFilename.h"

/// Names the file that is being read for the life of this object, so that whoever finds a fault in its text can say
/// where. Scopes nest and end in reverse order.
class ZEDOBJPARAM_API AxSourceScope
{
public:
    explicit AxSourceScope(AxFilename file);
    AxSourceScope(AxSourceScope const&) = delete;
    AxSourceScope& operator=(AxSourceScope const&) = delete;
    ~AxSourceScope();

    /// The file of the innermost scope; the null name outside of all.
    static AxFilename const& currentFile();

private:
    AxFilename myFile;
    AxSourceScope const* myOuter;
};
