#pragma once

#include "AxDescriptorOf.h"
#include "AxRwNLengthStringVector.h"
#include "AxRwScriptVariablesList.h"

/// A controller that makes scripts available to its object and sets their variables. Base of the controllers whose
/// work is written as scripts.
class ZEDOBJPARAM_API AxScriptEnableControllerDescriptor
    : public AxDescriptorOf<AxScriptEnableControllerDescriptor, AxComponentDescriptor,
                            "script-enable-controller-descriptor">
{
public:
    using AxDescriptorOf::AxDescriptorOf;
    AxScriptEnableControllerDescriptor(AxScriptEnableControllerDescriptor const& other,
                                       AxReaderWriterRegistry* registry)
        : AxScriptEnableControllerDescriptor(other.AxReaderWriter::name(), registry)
    {
        assign(other);
    }
    ~AxScriptEnableControllerDescriptor() override;

    virtual AxRwNLengthStringVector const& scriptIds() const;
    virtual AxRwNLengthStringVector& scriptIds();
    virtual AxRwScriptVariablesList const& scriptVariables() const;
    virtual AxRwScriptVariablesList& scriptVariables();

private:
    AxRwNLengthStringVector myScriptIds{{"script-ids", "", "Scripts that the object may run."}, registry()};
    AxRwScriptVariablesList myScriptVariables{{"script-variables", "", "Values handed to the scripts."}, registry()};
};
