#pragma once

#include "AxString.h"

#include <list>
#include <map>
#include <utility>

/// Creates objects of a family by an exact, case-sensitive type name, handing one parameter to the creator.
template <class T, class P>
class AxStringKeyFactoryWithParam
{
public:
    using Creator = T* (*)(P);

    virtual ~AxStringKeyFactoryWithParam() = default;

    /// Enters or replaces the creator of `key`.
    void addCreator(AxString const& key, Creator creator)
    {
        auto [place, isNew] = myCreators.insert_or_assign(key, creator);
        if (isNew)
        {
            myKeys.push_back(key);
        }
    }
    /// A new object, or null when the key is unknown.
    T* createItem(AxString const& key, P param) const
    {
        auto const found = myCreators.find(key);
        return found == myCreators.end() ? nullptr : found->second(param);
    }
    T* create(AxString const& key, P param) const { return createItem(key, param); }
    /// The keys in order of registration.
    std::list<AxString> const& keys() const { return myKeys; }

private:
    std::map<AxString, Creator> myCreators;
    std::list<AxString> myKeys;
};
