#pragma once

#include "AxRecordOf.h"
#include "AxRwString.h"

/// A rule by which component systems are wired to each other: every system that offers the output to every other one
/// that takes the input. A category restricts a side to systems that list it; an empty one restricts nothing.
class ZEDOBJPARAM_API AxRwAutoConnection : public AxRecordOf<AxRwAutoConnection, "AxRwAutoConnection">
{
public:
    using AxRecordOf::AxRecordOf;
    ~AxRwAutoConnection() override;

    virtual AxString const& output() const { return myOutput.value(); }
    virtual void setOutput(AxString const& port) { assignSpecified(myOutput, port); }
    virtual AxString const& input() const { return myInput.value(); }
    virtual void setInput(AxString const& port) { assignSpecified(myInput, port); }
    virtual AxString const& outputCategory() const { return myOutputCategory.value(); }
    virtual void setOutputCategory(AxString const& category) { assignSpecified(myOutputCategory, category); }
    virtual AxString const& inputCategory() const { return myInputCategory.value(); }
    virtual void setInputCategory(AxString const& category) { assignSpecified(myInputCategory, category); }

private:
    AxRwString myOutput{{"output", "", "Port of the sending system."}, registry()};
    AxRwString myInput{{"input", "", "Port of the receiving system."}, registry()};
    AxRwString myOutputCategory{{"output-category", "", "Category that the sender must list; empty: any."}, registry()};
    AxRwString myInputCategory{{"input-category", "", "Category that the receiver must list; empty: any."}, registry()};
};
