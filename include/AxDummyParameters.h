#pragma once

#include "AxRecordOf.h"
#include "AxRwString.h"

/// Reads the text of any object record and keeps only its type name, so that a tool can tell what a file holds without
/// a factory.
class ZEDOBJPARAM_API AxDummyParameters : public AxRecordOf<AxDummyParameters, "AxDummyParameters">
{
public:
    using AxRecordOf::AxRecordOf;
    ~AxDummyParameters() override;

    /// Empty when the text has no type item.
    virtual AxString const& parameterType() const { return myParameterType.value(); }

    using AxReaderWriter::getData;
    AxlObjPtr getData(AxlObjPtr const& items, AxFilenameList const& files, AxBindingsList const& bindings) override;

private:
    AxRwString myParameterType{{"parameter-type", "", "Type name of the record."}, registry()};
};
