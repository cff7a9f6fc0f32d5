#include "PathSteps.h"

#include <set>

#include "AxReaderWriter.h"
#include "EditedValue.h"
#include "PathText.h"
#include "TextPath.h"

void Steps::add(std::string const& head, std::string const& own, AxReaderWriter const* member, bool leadsOn)
{
    std::string const& name = member != nullptr || own.empty() ? head : own;
    if (!name.empty())
    {
        bool const isGroup = member != nullptr && !isText(member) && holdsItems(*member);
        myItems.push_back({name, leadsOn || isGroup});
        myCounts[name] += member != nullptr ? 0 : 1;
    }
}

std::vector<std::string> Steps::all(AxReaderWriter const* rw) const
{
    std::vector<std::string> steps;
    std::set<std::string> there;
    std::map<std::string, std::size_t> seen;
    auto const add = [&steps](std::string const& step, bool leadsOn) { steps.push_back(step + (leadsOn ? "/" : "")); };
    for (Item const& item : myItems)
    {
        bool const isFirst = there.insert(item.name).second;
        bool const isOneOfSeveral = myCounts.at(item.name) > 1;
        if (isOneOfSeveral)
        {
            add(stepOf(item.name) + "[" + std::to_string(++seen[item.name]) + "]", item.leadsOn);
        }
        else if (isFirst)
        {
            add(stepOf(item.name), item.leadsOn);
        }
    }
    for (std::string const& name : namesIn({}, rw))
    {
        if (!there.contains(name))
        {
            AxReaderWriter const* const member = memberOf(rw, name);
            add(name, member != nullptr && !isText(member) && holdsItems(*member));
        }
    }
    return steps;
}
