#include "AxEnvNamedList.h"

AxEnvNamedList::~AxEnvNamedList() = default;

void AxEnvNamedList::setName(AxString const& name)
{
    myName = name;
    myHasName = true;
}

void AxEnvNamedList::clearName()
{
    myName = AxString();
    myHasName = false;
}
