#pragma once

#include "AxRecord.h"
#include "AxRwBoolean.h"
#include "AxRwReal.h"
#include "AxRwString.h"

class AxComponentDescriptorFactory;

/// What every component of a simulated object (sensor, controller, actuator) is told: when it ticks, whether it is
/// created and enabled, and the state repository it works on. Base of the descriptor catalogue.
///
/// Its text starts, right after the name, with `(component-descriptor-type "...")`, from which a list makes the right
/// class again. A descriptor is owned by the list that holds it, else by its caller.
class ZEDOBJPARAM_API AxComponentDescriptor : public AxRecord
{
public:
    using CreatorFcn = AxComponentDescriptor* (*)();

    AxComponentDescriptor(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxComponentDescriptor(AxString const& name, AxReaderWriterRegistry* registry);
    AxComponentDescriptor(char const* name, AxReaderWriterRegistry* registry);
    /// A copy under the other's name; what a class derived from this one adds is left out.
    AxComponentDescriptor(AxComponentDescriptor const& other, AxReaderWriterRegistry* registry);
    AxComponentDescriptor(AxComponentDescriptor const&) = delete;
    ~AxComponentDescriptor() override;

    /// Each member takes value and flag of its namesake; the name stays.
    AxComponentDescriptor& operator=(AxComponentDescriptor const& other);
    /// Members only: two kinds without keywords of their own are equal.
    bool operator==(AxComponentDescriptor const& other) const { return AxReaderWriter::operator==(other); }

    // ---- The order of the virtual operations is part of the interface. ----
    /// The name under which the factory knows the class.
    virtual AxString type() const;
    /// A copy of the same class and name on the heap, entered in `registry` when that is given.
    virtual AxComponentDescriptor* clone(AxReaderWriterRegistry* registry) const;
    /// This setter, those of the state repository and `setDebugActive` leave the value-specified flag alone.
    virtual void setComponentType(AxString const& type);
    virtual AxString const& componentType() const;
    /// Called once, right after creation by type name.
    virtual bool init();
    virtual void setMinTickPeriod(double period);
    virtual double minTickPeriod() const;
    virtual void setMinTickPeriodVariance(double variance);
    virtual double minTickPeriodVariance() const;
    virtual void setTickPeriodUsesRealTime(bool usesRealTime);
    virtual bool tickPeriodUsesRealTime() const;
    virtual AxString const& processStateRepositoryName() const;
    virtual void setProcessStateRepositoryName(AxString const& name);
    virtual AxString const& processStateRepositoryType() const;
    virtual void setProcessStateRepositoryType(AxString const& type);
    virtual void setIsEnabled(bool enabled);
    virtual bool isEnabled() const;
    virtual void setDebugActive(bool active);
    virtual bool debugActive() const;
    virtual void setMinTaskVisualizationTickPeriod(double period);
    virtual double minTaskVisualizationTickPeriod() const;
    virtual void setCreateComponent(bool create);
    virtual bool createComponent() const;
    virtual void setCreateOnRemoteObject(bool create);
    virtual bool createOnRemoteObject() const;
    // ---- End of the virtual operations. ----

    using AxReaderWriter::getData;
    using AxReaderWriter::putData;
    void putData(std::string& out, int indent) override;
    /// Drops the first item, which tells the type; one with another head is reported.
    AxlObjPtr getData(AxlObjPtr const& items, AxFilenameList const& files, AxBindingsList const& bindings) override;
    char const* readerWriterType() const override;
    char const* xmlType() const override;

    static AxComponentDescriptor* creator();
    /// The host's factory, null until it sets one. It is never deleted here.
    static AxComponentDescriptorFactory* factory();
    static void setFactory(AxComponentDescriptorFactory* factory);
    /// Adds to the installed factory; a warning when there is none.
    static void addComponentDescriptorCreatorFcn(AxString const& type, CreatorFcn creator);
    /// A new, initialised descriptor, or null for an unknown type. A factory must be installed.
    static AxComponentDescriptor* createComponentDescriptor(char const* type);
    /// Makes what `(name (component-descriptor-type "...") item...)` tells, and reads it. Null after a warning when the
    /// type is unknown or no factory is installed. The caller owns the result.
    static AxComponentDescriptor* createComponentDescriptor(AxlObjPtr const& expression, AxFilenameList const& files,
                                                            AxBindingsList const& bindings);

protected:
    /// For classes with another default; the flag stays as it is.
    void assignDefaultMinTickPeriod(double period) { myMinTickPeriod = period; }

private:
    AxRwString myComponentType{
        {"component-type", "", "Name under which the engine knows the component's class; empty: by the descriptor's."},
        registry()};
    AxRwReal myMinTickPeriod{
        {"min-tick-period", "s", "Shortest time between two ticks; negative: the component's own."}, -1.0, registry()};
    AxRwReal myMinTickPeriodVariance{
        {"min-tick-period-variance", "s", "Spread of the tick period; negative: the component's own."},
        -1.0,
        registry()};
    AxRwBoolean myTickPeriodUsesRealTime{
        {"tick-period-uses-real-time", "", "Whether the tick period counts wall-clock instead of simulation time."},
        registry()};
    AxRwString myProcessStateRepositoryName{
        {"process-state-repository-name", "", "Name of the state repository of the component's process."}, registry()};
    AxRwString myProcessStateRepositoryType{
        {"process-state-repository-type", "", "Type of the state repository of the component's process."}, registry()};
    AxRwBoolean myIsEnabled{{"is-enabled", "", "Whether the component runs from the start."}, true, registry()};
    AxRwBoolean myDebugDetail{{"debug-detail", "", "Whether the component reports details of its work."}, registry()};
    AxRwReal myMinTaskVisualizationTickPeriod{
        {"min-task-visualization-tick-period", "s", "Shortest time between two task pictures; negative: the engine's."},
        -1.0,
        registry()};
    AxRwBoolean myCreateComponent{{"create-component", "", "Whether the component is made at all."}, true, registry()};
    AxRwBoolean myCreateOnRemoteObject{
        {"create-on-remote-object", "", "Whether objects that other simulators own get the component too."},
        registry()};
};
