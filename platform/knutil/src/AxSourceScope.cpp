#include "AxSourceScope.h"

#include <utility>

namespace
{
AxSourceScope const* theInnermost = nullptr;
} // namespace

AxSourceScope::AxSourceScope(AxFilename file) : myFile(std::move(file)), myOuter(std::exchange(theInnermost, this)) {}

AxSourceScope::~AxSourceScope()
{
    theInnermost = myOuter;
}

AxFilename const& AxSourceScope::currentFile()
{
    return theInnermost != nullptr ? theInnermost->myFile : AxFilename::nullFilename();
}
