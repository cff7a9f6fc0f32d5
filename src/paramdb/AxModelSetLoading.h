#pragma once

#include "AxModelSet.h"

#include <unordered_set>

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
    void add(AxString const& id) { myIds.insert(id); }
    /// The last number put behind `base`; 0 for none.
    int& numberOf(AxString const& base) { return myNumbers[base]; }
    /// To be called when an entry has another identifier than before.
    void readIds();

private:
    AxModelSet& myModels;
    std::unordered_set<AxString> myIds;
    std::unordered_map<AxString, int> myNumbers;
};
