#include "AxObjectIndex.h"

#include "AxObjectElement.h"

#include <algorithm>
#include <utility>

namespace
{
bool hasType(AxEnvValuePtr const& element, AxObjectType const& type, bool isMatchType)
{
    if (!isMatchType)
    {
        return !type.isNull() && AxObjectElement::objectTypeOf(element, false) == type;
    }
    std::vector<AxObjectType> const types = AxObjectElement::matchTypesOf(element, false);
    return std::find(types.begin(), types.end(), type) != types.end();
}

bool standsIn(AxEnvironment const& env, AxEnvValuePtr node)
{
    while (AxEnvValuePtr const parent = node->parent())
    {
        node = parent;
    }
    return node == env.root();
}
} // namespace

AxEnvValuePtr AxObjectIndex::walkTo(AxEnvironmentPtr const& env, AxObjectType const& type, bool isMatchType)
{
    AxEnvObjectList const elements = AxObjectElement::allOf(env);
    auto const found = std::find_if(elements.rbegin(), elements.rend(),
                                    [&](AxEnvObjectPtr const& element) { return hasType(element, type, isMatchType); });
    return found == elements.rend() ? AxEnvValuePtr() : *found;
}

AxEnvValuePtr AxObjectIndex::find(AxEnvironmentPtr const& env, AxObjectType const& type, bool isMatchType)
{
    if (!std::exchange(myIsAsked, true))
    {
        return walkTo(env, type, isMatchType);
    }
    if (!myIsMade)
    {
        make(env);
    }
    Elements const& elements = isMatchType ? myMatchTypes : myObjectTypes;
    auto const known = elements.find(type);
    if (known == elements.end())
    {
        return {};
    }
    AxEnvValuePtr const element = known->second.lock();
    // Who holds the tree may have put another element in its place.
    bool const isStill = element && standsIn(*env, element) && hasType(element, type, isMatchType);
    return isStill ? element : walkTo(env, type, isMatchType);
}

void AxObjectIndex::make(AxEnvironmentPtr const& env)
{
    Elements objectTypes;
    Elements matchTypes;
    for (AxEnvObjectPtr const& element : AxObjectElement::allOf(env))
    {
        AxObjectType const type = AxObjectElement::objectTypeOf(element, false);
        if (!type.isNull())
        {
            objectTypes.insert_or_assign(type, element);
        }
        for (AxObjectType const& match : AxObjectElement::matchTypesOf(element, false))
        {
            matchTypes.insert_or_assign(match, element);
        }
    }
    myObjectTypes.swap(objectTypes);
    myMatchTypes.swap(matchTypes);
    myIsMade = true;
}
