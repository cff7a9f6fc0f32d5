#include "AxEnvValue.h"

#include "AxEnvObject.h"

AxEnvValue::~AxEnvValue() = default;

AxEnvValuePtr AxEnvValue::parent() const
{
    return myParent != nullptr ? myParent->shared_from_this() : AxEnvValuePtr();
}

AxEnvObjectPtr AxEnvValue::castToObject()
{
    return isObject() ? boost::static_pointer_cast<AxEnvObject>(shared_from_this()) : AxEnvObjectPtr();
}

AxEnvNamedListPtr AxEnvValue::castToNamedList()
{
    return isNamedList() ? boost::static_pointer_cast<AxEnvNamedList>(shared_from_this()) : AxEnvNamedListPtr();
}

AxEnvListPtr AxEnvValue::castToList()
{
    return isList() ? boost::static_pointer_cast<AxEnvList>(shared_from_this()) : AxEnvListPtr();
}
