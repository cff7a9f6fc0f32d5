#include "AxFileChain.h"

#include "AxLimits.h"
#include "AxReadFrame.h"

#include <algorithm>

std::vector<AxFileChain::Link>& AxFileChain::links()
{
    static auto* const all = new std::vector<Link>;
    return *all;
}

bool AxFileChain::holds(AxFileIdentity const& identity)
{
    return std::any_of(links().begin(), links().end(),
                       [&identity](Link const& link) { return link.identity.isSameFile(identity); });
}

bool AxFileChain::isFull()
{
    return !budget().grants(links().empty()) || links().size() >= axLimits.fileChain ||
           AxReadFrame::depth() > axLimits.recordNesting;
}

bool AxFileChain::isFirstRefusal()
{
    return budget().isFirstRefusal();
}

AxReadBudget& AxFileChain::budget()
{
    static AxReadBudget loads(axLimits.fileLoads);
    return loads;
}

std::string AxFileChain::path(AxFilename const& last)
{
    std::string text;
    for (Link const& link : links())
    {
        text += link.name + " -> ";
    }
    return text + last.native();
}

AxFileChain::AxFileChain(AxFilename const& file, AxFileIdentity const& identity)
{
    links().push_back({file.native(), identity});
}

AxFileChain::~AxFileChain()
{
    links().pop_back();
}
