#pragma once

#include "AxRecordOf.h"
#include "AxRwObjectType.h"
#include "AxRwStringList.h"

#include <boost/shared_ptr.hpp>

/// What to add to objects that other simulators own: the component systems to run on those of a type.
class ZEDOBJPARAM_API AxRemoteConfiguration : public AxRecordOf<AxRemoteConfiguration, "AxRemoteConfiguration">
{
public:
    using AxRecordOf::AxRecordOf;
    AxRemoteConfiguration();
    AxRemoteConfiguration(AxRemoteConfiguration const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxRemoteConfiguration() override;
    AxRemoteConfiguration& operator=(AxRemoteConfiguration const& other);
    bool equals(AxRemoteConfiguration const& other) const { return AxReaderWriter::operator==(other); }

    AxObjectType const& objectType() const { return myObjectType.value(); }
    void setObjectType(AxObjectType const& pattern) { assignSpecified(myObjectType, pattern); }
    AxRwStringList const& systemDefinitions() const { return mySystemDefinitions; }
    AxRwStringList& systemDefinitions() { return mySystemDefinitions; }

    /// The variables of the file that this was read from; shared, not written, without part in equality.
    boost::shared_ptr<AxRwVariableBindings> const& variableBindings() const { return myVariableBindings; }
    void setVariableBindings(boost::shared_ptr<AxRwVariableBindings> const& bindings) { myVariableBindings = bindings; }

    /// What the configurations of a list are called in text.
    static AxSymbolString elementWord();

private:
    AxRwObjectType myObjectType{{"object-type", "", "Pattern of the remote objects."}, registry()};
    AxRwStringList mySystemDefinitions{{"system-definitions", "", "Definition files of the systems to run on them."},
                                       registry()};
    boost::shared_ptr<AxRwVariableBindings> myVariableBindings;
};
