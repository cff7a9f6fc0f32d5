#pragma once

#include "AxModelSet.h"

#include <unordered_map>

/// Lives while a set takes in many entries that nobody else has: their types and identifiers are known then, and none
/// needs a walk over the others.
class AxModelSet::Loading
{
public:
    explicit Loading(AxModelSet& models);
    Loading(Loading const&) = delete;
    Loading& operator=(Loading const&) = delete;
    ~Loading() { myModels.myLoading = nullptr; }

    bool isUsed(AxString const& id) const { return myIds.contains(id); }
    void add(AxString const& id) { ++myIds[id]; }
    /// An entry has another identifier than before.
    void replace(AxString const& id, AxString const& other);
    /// All numbers below it are in use behind `base`; 0 stands for none.
    int& numberOf(AxString const& base) { return myNumbers[base]; }

private:
    /// The number may be put behind `base` again.
    void release(AxString const& base, int number);

    AxModelSet& myModels;
    std::unordered_map<AxString, int> myIds; // how many entries have it
    std::unordered_map<AxString, int> myNumbers;
};
