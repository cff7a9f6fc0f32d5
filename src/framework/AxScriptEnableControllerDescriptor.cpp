#include "AxScriptEnableControllerDescriptor.h"

AxScriptEnableControllerDescriptor::~AxScriptEnableControllerDescriptor() = default;

AxRwNLengthStringVector const& AxScriptEnableControllerDescriptor::scriptIds() const
{
    return myScriptIds;
}

AxRwNLengthStringVector& AxScriptEnableControllerDescriptor::scriptIds()
{
    return myScriptIds;
}

AxRwScriptVariablesList const& AxScriptEnableControllerDescriptor::scriptVariables() const
{
    return myScriptVariables;
}

AxRwScriptVariablesList& AxScriptEnableControllerDescriptor::scriptVariables()
{
    return myScriptVariables;
}
