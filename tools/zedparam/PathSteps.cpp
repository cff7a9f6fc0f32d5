#include "PathSteps.h"

#include <set>

#include "AxObjectType.h"
#include "AxReaderWriter.h"
#include "EditedValue.h"
#include "PathText.h"
#include "TextPath.h"

namespace
{
/// Whether a path may go on behind the member.
bool isGroup(AxReaderWriter const& member)
{
    return !isText(&member) && (holdsItems(member) || holdsNamedValues(&member));
}

/// Whether there is nothing to set: an extension of the host's that has no members, as there is no host.
bool isVoid(AxReaderWriter& member)
{
    std::string text;
    member.putSelf(text, 0, true, AxFilename::nullFilename());
    return !TextTree(text).root().firstValue() && !isText(&member);
}

/// For one type there may be several, called by their heads.
bool isObjectType(std::string const& name)
{
    AxObjectType type;
    return name.find(':') != std::string::npos && AxObjectType::fromString(name, type);
}
} // namespace

void PathSteps::add(std::string const& head, std::string const& own, AxReaderWriter const* member, bool leadsOn)
{
    if (head.empty() && own.empty())
    {
        return;
    }
    bool const isMember = member != nullptr;
    myItems.push_back({head, isMember ? std::string() : own, isMember, leadsOn || (isMember && isGroup(*member))});
    if (!isMember)
    {
        ++myHeads[head];
        ++myOwnNames[own];
    }
}

std::vector<std::string> PathSteps::all(AxReaderWriter const* rw) const
{
    std::vector<std::string> steps;
    std::set<std::string> there;
    std::map<std::string, std::size_t> seenHeads;
    std::map<std::string, std::size_t> seenOwnNames;
    auto const add = [&steps](std::string const& step, bool leadsOn) { steps.push_back(step + (leadsOn ? "/" : "")); };
    for (Item const& item : myItems)
    {
        // What is called by a head comes first for whoever follows a path; each head counts all that have it.
        std::size_t const ofHead = item.isMember ? 0 : ++seenHeads[item.head];
        bool const isByOwn =
            !item.own.empty() && !myHeads.contains(item.own) && (!isObjectType(item.own) || myHeads.at(item.head) > 1);
        std::size_t const ofOwn = isByOwn ? ++seenOwnNames[item.own] : 0;
        std::string const& name = isByOwn ? item.own : item.head;
        bool const isFirst = there.insert(name).second;
        if (!item.isMember && (isByOwn ? myOwnNames.at(name) : myHeads.at(name)) > 1)
        {
            add(stepOf(name) + "[" + std::to_string(isByOwn ? ofOwn : ofHead) + "]", item.leadsOn);
        }
        else if (isFirst)
        {
            add(stepOf(name), item.leadsOn);
        }
    }
    for (std::string const& name : namesIn({}, rw))
    {
        AxReaderWriter* const member = there.contains(name) ? nullptr : memberOf(rw, name);
        bool const leadsOn = member != nullptr && isGroup(*member);
        if (member != nullptr && (leadsOn || !isVoid(*member)))
        {
            add(name, leadsOn);
        }
    }
    return steps;
}
