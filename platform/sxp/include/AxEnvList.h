#pragma once

#include <cstddef>
#include <vector>

#include "AxEnvValue.h"
#include "AxExport.h"

class AxXmlDocument;

/// A node with children, in order.
class ZEDOBJPARAM_API AxEnvList : public AxEnvValue
{
public:
    AxEnvList() = default;
    ~AxEnvList() override;

    bool isList() const override { return true; }

    std::vector<AxEnvValuePtr> const& children() const
    {
        expand();
        return myChildren;
    }
    std::size_t count() const { return children().size(); }

    /// Appends `child`, taking it out of the list that held it. False for null, this node itself and those above it.
    bool add(AxEnvValuePtr const& child);
    /// The same in front of the child at `index`; at the end when there is none.
    bool insert(std::size_t index, AxEnvValuePtr const& child);
    /// Lets go of a child; false when it is not one of this list.
    bool remove(AxEnvValuePtr const& child);
    void removeAll();

protected:
    /// What was read from a document is made of it when it is looked for.
    void expand() const
    {
        if (mySource) [[unlikely]]
        {
            expandFromSource();
        }
    }

private:
    friend class AxXmlDocument;

    void expandFromSource() const;
    void letGo();

    std::vector<AxEnvValuePtr> myChildren;
    boost::shared_ptr<AxXmlDocument const> mySource;
    std::uint32_t mySourceNode = 0;
};
