#pragma once

#include "AxRecordOf.h"
#include "AxRwInt.h"
#include "AxRwObjectType.h"
#include "AxRwString.h"

/// A kind of ammunition, or a pattern for kinds of ammunition.
class ZEDOBJPARAM_API AxSimMunition : public AxRecordOf<AxSimMunition, "AxSimMunition">
{
public:
    using AxRecordOf::AxRecordOf;
    AxSimMunition();
    AxSimMunition(AxSymbolString name, AxSimMunition const& other, AxReaderWriterRegistry* registry);
    AxSimMunition(AxSimMunition const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxSimMunition() override;
    AxSimMunition& operator=(AxSimMunition const& other);

    AxObjectType const& munitionType() const { return myMunitionType.value(); }
    void setMunitionType(AxObjectType const& type) { assignSpecified(myMunitionType, type); }
    /// What is fired instead when tracers are on: tracer rounds have entity types of their own.
    AxObjectType const& tracerType() const { return myTracerType.value(); }
    void setTracerType(AxObjectType const& type) { assignSpecified(myTracerType, type); }
    /// Warhead of the protocol, -1 when not given.
    int warhead() const { return myWarhead.value(); }
    void setWarhead(int warhead) { assignSpecified(myWarhead, warhead); }
    /// "none", "wire", "laser", "radar", "infrared", "satellite"; empty when not given.
    AxString const& guidanceMode() const { return myGuidanceMode.value(); }
    void setGuidanceMode(AxString const& mode) { assignSpecified(myGuidanceMode, mode); }
    AxString const& munitionName() const { return myMunitionName.value(); }
    void setMunitionName(AxString const& name) { assignSpecified(myMunitionName, name); }

    /// Whether `other` fits this munition taken as the pattern: it agrees in all that this one gives, its types by the
    /// rule of object types. A munition that gives nothing fits every other. (The object types' own `matchPattern`
    /// takes the pattern as its argument.)
    bool matchPattern(AxSimMunition const& other) const;

private:
    AxRwObjectType myMunitionType{{"munition-type", "", "Entity type of the munition."}, registry()};
    AxRwObjectType myTracerType{{"tracer-type", "", "Entity type fired when tracers are on."}, registry()};
    AxRwInt myWarhead{{"warhead", "", "Warhead of the protocol; -1: not given.", {-1.0, 65535.0}}, -1, registry()};
    AxRwString myGuidanceMode{{"guidance-mode", "", "none, wire, laser, radar, infrared or satellite."}, registry()};
    AxRwString myMunitionName{{"munition-name", "", "Name that the munition is looked up by."}, registry()};
};
