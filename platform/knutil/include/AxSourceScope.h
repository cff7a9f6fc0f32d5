#pragma once

#include <string_view>
#include <utility>
#include <vector>

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

    /// Which outermost scope this is inside of, counted from 1 as they begin; 0 outside of all.
    static unsigned long outermost();

    /// Says that what was told of this place of the current file is enough: findings there are dropped until the
    /// outermost scope of that file ends.
    static void settle(unsigned line, unsigned column);
    static bool isSettled(std::string_view file, unsigned line, unsigned column);

private:
    AxFilename myFile;
    AxSourceScope* myOuter;
    std::vector<std::pair<unsigned, unsigned>> mySettled; // lines and columns
};
