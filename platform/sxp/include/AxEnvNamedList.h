#pragma once

#include "AxEnvList.h"
#include "AxExport.h"

/// A list that may have a name. No name and an empty name are different.
class ZEDOBJPARAM_API AxEnvNamedList : public AxEnvList
{
public:
    AxEnvNamedList() = default;
    explicit AxEnvNamedList(AxString name) : myName(std::move(name)), myHasName(true) {}
    ~AxEnvNamedList() override;

    bool isNamedList() const override { return true; }

    /// "" when there is none.
    AxString const& name() const { return myName; }
    bool hasName() const { return myHasName; }
    void setName(AxString const& name);
    void clearName();

private:
    AxString myName;
    bool myHasName = false;
};
