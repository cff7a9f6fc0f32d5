#pragma once

#include "AxEnvironment.h"
#include "AxObjectType.h"

#include <boost/weak_ptr.hpp>
#include <unordered_map>

/// The object elements of one tree by their types. What is put into the tree after the second look-up is not found.
class AxObjectIndex
{
public:
    /// The last object element that has exactly this object or match type; null when there is none.
    AxEnvValuePtr find(AxEnvironmentPtr const& env, AxObjectType const& type, bool isMatchType);
    /// The same without an index, by a walk over all elements.
    static AxEnvValuePtr walkTo(AxEnvironmentPtr const& env, AxObjectType const& type, bool isMatchType);

private:
    using Elements = std::unordered_map<AxObjectType, boost::weak_ptr<AxEnvValue>>;

    void make(AxEnvironmentPtr const& env);

    Elements myObjectTypes;
    Elements myMatchTypes;
    bool myIsAsked = false; // a tree is worth it that is asked again
    bool myIsMade = false;
};
