#pragma once

#include <cstddef>
#include <vector>

#include "AxEnvValue.h"
#include "AxExport.h"

/// A node with children, in order.
class ZEDOBJPARAM_API AxEnvList : public AxEnvValue
{
public:
    AxEnvList() = default;
    ~AxEnvList() override;

    bool isList() const override { return true; }

    std::vector<AxEnvValuePtr> const& children() const { return myChildren; }
    std::size_t count() const { return myChildren.size(); }

    /// Appends `child`, taking it out of the list that held it. False for null, this node itself and those above it.
    bool add(AxEnvValuePtr const& child);
    /// The same in front of the child at `index`; at the end when there is none.
    bool insert(std::size_t index, AxEnvValuePtr const& child);
    /// Lets go of a child; false when it is not one of this list.
    bool remove(AxEnvValuePtr const& child);
    void removeAll();

private:
    std::vector<AxEnvValuePtr> myChildren;
};
