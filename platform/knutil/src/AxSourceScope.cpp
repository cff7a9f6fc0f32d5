#include "AxSourceScope.h"

#include <algorithm>
#include <utility>

namespace
{
AxSourceScope* theInnermost = nullptr;
unsigned long theOutermost = 0;
} // namespace

AxSourceScope::AxSourceScope(AxFilename file) : myFile(std::move(file)), myOuter(std::exchange(theInnermost, this))
{
    theOutermost += myOuter == nullptr ? 1 : 0;
}

AxSourceScope::~AxSourceScope()
{
    theInnermost = myOuter;
}

AxFilename const& AxSourceScope::currentFile()
{
    return theInnermost != nullptr ? theInnermost->myFile : AxFilename::nullFilename();
}

unsigned long AxSourceScope::outermost()
{
    return theInnermost != nullptr ? theOutermost : 0;
}

void AxSourceScope::settle(unsigned line, unsigned column)
{
    AxSourceScope* outermost = theInnermost;
    for (AxSourceScope* scope = theInnermost; scope != nullptr; scope = scope->myOuter)
    {
        outermost = scope->myFile == theInnermost->myFile ? scope : outermost;
    }
    if (outermost != nullptr)
    {
        outermost->mySettled.emplace_back(line, column);
    }
}

bool AxSourceScope::isSettled(std::string_view file, unsigned line, unsigned column)
{
    for (AxSourceScope const* scope = theInnermost; scope != nullptr; scope = scope->myOuter)
    {
        if (std::ranges::find(scope->mySettled, std::pair(line, column)) != scope->mySettled.end() &&
            scope->myFile.native() == file)
        {
            return true;
        }
    }
    return false;
}
