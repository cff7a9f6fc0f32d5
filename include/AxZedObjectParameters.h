#pragma once

#include "Ax3dBoundingVolume.h"
#include "AxComponentDescriptorList.h"
#include "AxComponentSystemDescriptorList.h"
#include "AxConnectionDescriptorList.h"
#include "AxRadioDescriptorList.h"
#include "AxReaderWriterFile.h"
#include "AxRwAppearance.h"
#include "AxRwAutoConnection.h"
#include "AxRwBoundingGeometryType.h"
#include "AxRwBoundingVolume.h"
#include "AxRwDeadReckonThresholds.h"
#include "AxRwDeadReckonTypes.h"
#include "AxRwForceType.h"
#include "AxRwFormationType.h"
#include "AxRwNavigationParameters.h"
#include "AxRwProperties.h"
#include "AxRwSensorSignatureList.h"
#include "AxRwVariableBindings.h"
#include "AxSimResourceManager.h"
#include "AxSimSector.h"
#include "AxTaskExecutionRules.h"
#include "AxZedObjectSubComponentTypes.h"
#include "AxZedStateRepositoryUserExtension.h"
#include "AxZedSubObjectParameterList.h"

#include <memory>
#include <typeinfo>

class AxSimArtPartDescriptor;
class AxZedObjectParameterFactory;

/// What an object of one type is: everything the simulation is told before it creates one. Base of the records of all
/// kinds of objects; owned by the database entry that loaded it, else by its caller.
///
/// Its text starts, right after the name, with `(parameter-type "...")`, from which the right class is made again. A
/// record is complete after `init`, which every entry point that creates one by type name calls.
class ZEDOBJPARAM_API AxZedObjectParameters : public AxRecord
{
public:
    using CreatorFcn = AxZedObjectParameters* (*)(AxEnvironmentPtr env, AxEnvValuePtr* node);
    using AutoConnectionList = AxRwTemplatedListPtr<AxRwAutoConnection, 1>;
    using ArtPartList = std::list<AxSimArtPartDescriptor*>;

    /// `env` and `node` are where the record was read from, when that was a tree; both may be null.
    AxZedObjectParameters(AxSymbolString name, AxReaderWriterRegistry* parent, AxEnvironmentPtr const& env = {},
                          AxEnvValuePtr const* node = nullptr);
    AxZedObjectParameters(AxString const& name, AxReaderWriterRegistry* parent, AxEnvironmentPtr const& env = {},
                          AxEnvValuePtr const* node = nullptr);
    AxZedObjectParameters(char const* name, AxReaderWriterRegistry* parent, AxEnvironmentPtr const& env = {},
                          AxEnvValuePtr const* node = nullptr);
    AxZedObjectParameters(AxZedObjectParameters const&) = delete;
    ~AxZedObjectParameters() override;

    /// Every member takes value and flag of its namesake; object, match and parameter type, variable bindings and user
    /// extension come along. Initialises this record when the source is. Name, environment and node stay.
    AxZedObjectParameters& operator=(AxZedObjectParameters const& other);
    /// Registered members only: not the types, the sub-component types and the sub-object lists.
    bool equals(AxZedObjectParameters const& other) const { return *registryIfAny() == *other.registryIfAny(); }
    bool operator==(AxZedObjectParameters const& other) const { return equals(other); }
    bool operator!=(AxZedObjectParameters const& other) const { return !equals(other); }

    // ---- The order of the virtual operations is part of the interface. ----
    /// A record of the same class that equals this one; null, after a warning, without memory. The caller owns it.
    virtual AxZedObjectParameters* clone(AxSymbolString name, AxReaderWriterRegistry* registry) const;
    virtual AxZedObjectParameters* clone(AxString const& name, AxReaderWriterRegistry* registry) const;
    /// Makes the sub-component types anew and the sub-object lists where they are missing. False, after a warning, when
    /// the class refuses its sub-component types.
    virtual bool init();
    /// The type name of the class; see `parameterType` for the name that the record was created under.
    virtual AxString type() const;
    /// Takes from a more general record (null: nothing) each value that this record did not specify and that one
    /// specified or inherited itself. Inherited values stay unspecified, so they are not written. Lists are taken
    /// whole, nested records member by member.
    virtual void inheritValues(AxZedObjectParameters const* parent);
    /// The same from a record of the same class, whose defaults are taken as well; nothing from another class.
    virtual void inheritValuesFromThisType(AxZedObjectParameters const* other);
    virtual bool createLocalSubComponentTypes();
    virtual bool createRemoteSubComponentTypes();
    virtual AxZedObjectSubComponentTypes* localZedSubComponentTypes() const { return myLocalSubComponentTypes.get(); }
    virtual AxZedObjectSubComponentTypes* remoteZedSubComponentTypes() const { return myRemoteSubComponentTypes.get(); }
    virtual void setMinTickPeriod(double period) { assignSpecified(myMinTickPeriod, period); }
    virtual double minTickPeriod() const { return myMinTickPeriod; }
    virtual void setMinTickPeriodVariance(double variance) { assignSpecified(myMinTickPeriodVariance, variance); }
    virtual double minTickPeriodVariance() const { return myMinTickPeriodVariance; }
    virtual AxForceType forceType() const { return myForce.value(); }
    virtual void setForceType(AxForceType force) { assignSpecified(myForce, force); }
    virtual AxString const& category() const { return myCategory.value(); }
    virtual void setCategory(AxString const& category) { assignSpecified(myCategory, category); }
    virtual bool categorySpecified() const { return myCategory.valueSpecified(); }
    virtual AxString const& echelonLevel() const { return myEchelonLevel.value(); }
    virtual void setEchelonLevel(AxString const& level) { assignSpecified(myEchelonLevel, level); }
    virtual bool echelonLevelSpecified() const { return myEchelonLevel.valueSpecified(); }
    virtual bool organized() const { return myIsOrganized; }
    virtual void setOrganized(bool organized) { assignSpecified(myIsOrganized, organized); }
    virtual AxComponentSystemDescriptorList& systemDescriptorList() { return mySystems; }
    virtual AxComponentSystemDescriptorList const& systemDescriptorList() const { return mySystems; }
    virtual void setSystemDescriptorList(AxComponentSystemDescriptorList const& list);
    virtual AxComponentDescriptorList& sensorDescriptorList() { return mySensors; }
    virtual AxComponentDescriptorList const& sensorDescriptorList() const { return mySensors; }
    virtual void setSensorDescriptorList(AxComponentDescriptorList const& list);
    virtual AxComponentDescriptorList& controllerDescriptorList() { return myControllers; }
    virtual AxComponentDescriptorList const& controllerDescriptorList() const { return myControllers; }
    virtual void setControllerDescriptorList(AxComponentDescriptorList const& list);
    virtual AxComponentDescriptorList& actuatorDescriptorList() { return myActuators; }
    virtual AxComponentDescriptorList const& actuatorDescriptorList() const { return myActuators; }
    virtual void setActuatorDescriptorList(AxComponentDescriptorList const& list);
    virtual AxConnectionDescriptorList& connectionDescriptorList() { return myConnections; }
    virtual AxConnectionDescriptorList const& connectionDescriptorList() const { return myConnections; }
    virtual void setConnectionDescriptorList(AxConnectionDescriptorList const& list);
    virtual AxDeadReckonTypes deadReckoningAlgorithm() const { return myDrAlgorithm.value(); }
    virtual void setDeadReckoningAlgorithm(AxDeadReckonTypes algorithm) { assignSpecified(myDrAlgorithm, algorithm); }
    virtual AxRwNavigationParameters& navigationParameters() { return myNavigationParameters; }
    virtual AxRwNavigationParameters const& navigationParameters() const { return myNavigationParameters; }
    virtual void setNavigationParameters(AxRwNavigationParameters const& parameters);
    /// A copy that is registered nowhere.
    virtual AxRwBoolean deadReckoningAllowGuiOverrides() const { return myDrAllowGuiOverrides; }
    virtual void setDeadReckoningAllowGuiOverrides(bool allow) { assignSpecified(myDrAllowGuiOverrides, allow); }
    virtual AxRwDeadReckonThresholds const& deadReckoningThresholds() const { return myDrThresholds; }
    virtual void setDeadReckoningThresholds(AxRwDeadReckonThresholds const& thresholds);
    virtual double mass() const { return myMass; }
    virtual void setMass(double kilograms) { assignSpecified(myMass, kilograms); }
    virtual AxRadioDescriptorList& radioDescriptorList() { return myRadios; }
    virtual AxRadioDescriptorList const& radioDescriptorList() const { return myRadios; }
    virtual AxRwSensorSignatureList& sensorSignatureList() { return mySensorSignatures; }
    virtual AxRwSensorSignatureList const& sensorSignatureList() const { return mySensorSignatures; }
    /// Null before `init`, as the attached objects and the sub-component types.
    virtual AxZedSubObjectParameterList* subordinateObjects() const { return mySubordinateObjects.get(); }
    /// Copies the list; nothing before `init`.
    virtual void setSubordinateObjects(AxZedSubObjectParameterList const& objects);
    virtual AxZedSubObjectParameterList* attachedObjects() const { return myAttachedObjects.get(); }
    virtual void setAttachedObjects(AxZedSubObjectParameterList const& objects);
    virtual AxZedObjectSubComponentTypes* localSubComponentTypes() const { return myLocalSubComponentTypes.get(); }
    virtual AxZedObjectSubComponentTypes* remoteSubComponentTypes() const { return myRemoteSubComponentTypes.get(); }
    /// Null while the volume is neither specified nor inherited. Valid until the volume changes.
    virtual Ax3dBoundingVolume const* boundingVolume() const;
    virtual void setBoundingVolume(AxVector64 const& min, AxVector64 const& max);
    virtual void setBoundingVolume(Ax3dBoundingVolume const& volume);
    virtual AxSimBoundingGeometry::AxSimBoundingGeometryType boundingGeometryType() const;
    virtual void setBoundingGeometryType(AxSimBoundingGeometry::AxSimBoundingGeometryType type);
    /// Depth of the lowest point of the bounding volume below the reference surface, metres; 0.0 without a volume.
    virtual double draft() const;
    virtual AxAggregateFormation formation() const { return myFormation.value(); }
    virtual void setFormation(AxAggregateFormation formation) { assignSpecified(myFormation, formation); }
    /// The protocol's 32-bit appearance word.
    virtual unsigned long appearance() const { return myDefaultAppearance; }
    /// Bits beyond the 32nd are dropped.
    virtual void setAppearance(unsigned long appearance);
    virtual bool appearanceSpecified() const { return myDefaultAppearance.valueSpecified(); }
    virtual AxString const& displayName() const { return myDisplayName.value(); }
    virtual void setDisplayName(AxString const& name) { assignSpecified(myDisplayName, name); }
    virtual AxString const& displayDescription() const { return myDisplayDescription.value(); }
    virtual void setDisplayDescription(AxString const& text) { assignSpecified(myDisplayDescription, text); }
    virtual AxString const& engagementRules() const { return myEngagementRules.value(); }
    virtual void setEngagementRules(AxString const& rules) { assignSpecified(myEngagementRules, rules); }
    virtual AxSimResourceManager const& resourceManager() const { return myResources; }
    virtual void setResourceManager(AxSimResourceManager const& resources);
    virtual void setStateRepositoryUserExtensionType(AxString const& type) { assignSpecified(myExtensionType, type); }
    virtual AxString const& stateRepositoryUserExtensionType() const { return myExtensionType.value(); }
    virtual AxObjectType const& objectType() const { return myObjectType; }
    virtual void setObjectType(AxObjectType const& type) { myObjectType = type; }
    virtual AxObjectType const& matchType() const { return myMatchType; }
    virtual void setMatchType(AxObjectType const& type) { myMatchType = type; }
    virtual bool taskedBySuperiorUponTaskComplete() const { return myTaskedBySuperior; }
    virtual void setTaskedBySuperiorUponTaskComplete(bool tasked) { assignSpecified(myTaskedBySuperior, tasked); }
    virtual void setRangeRingPublisherTickTime(double period) { assignSpecified(myRangeRingTickTime, period); }
    virtual double rangeRingPublisherTickTime() const { return myRangeRingTickTime; }
    /// Takes ownership and registers it; the earlier one is deleted. Null leaves the record without one.
    virtual void setStateRepositoryUserExtension(AxZedStateRepositoryUserExtension* extension);
    /// Null until the record was read or given one.
    virtual AxZedStateRepositoryUserExtension* stateRepositoryUserExtension() const { return myUserExtension.get(); }
    virtual double underFireTime() const { return myUnderFireTime; }
    virtual void setUnderFireTime(double period) { assignSpecified(myUnderFireTime, period); }
    virtual bool underFireTimeSpecified() const { return myUnderFireTime.valueSpecified(); }
    virtual double underFireDistance() const { return myUnderFireDistance; }
    virtual void setUnderFireDistance(double metres) { assignSpecified(myUnderFireDistance, metres); }
    virtual bool underFireDistanceSpecified() const { return myUnderFireDistance.valueSpecified(); }
    virtual AxSimSector const& initialSectorOfResponsibility() const { return myInitialSector; }
    virtual void setInitialSectorOfResponsibility(AxSimSector const& sector);
    virtual AxTaskExecutionRules const& taskExecutionRules() const { return myTaskExecutionRules; }
    virtual AxTaskExecutionRules& taskExecutionRules() { return myTaskExecutionRules; }
    /// Nothing is loaded.
    virtual void setTaskExecutionRulesFilename(AxFilename const& file);
    virtual AxFilename const& taskExecutionRulesFilename() const { return myTaskExecutionRulesFile.filename(); }
    virtual AutoConnectionList& autoConnections() { return myAutoConnections; }
    virtual AutoConnectionList const& autoConnections() const { return myAutoConnections; }
    /// The articulated parts of all component systems as they are now. Valid until a system changes.
    virtual ArtPartList const& completeArtPartList() const;
    /// Adds the connections that the automatic rules ask for; see AxRwAutoConnection. The engine calls this after
    /// loading. What is added is not written, and a second call adds nothing.
    virtual void connectSystems();
    virtual AxEnvironmentPtr const& xmlEnvironment() const { return myEnvironment; }
    virtual AxEnvValuePtr const& objectNode() const { return myObjectNode; }
    /// The value of a variable of the record's text, null text when there is none.
    virtual AxString findVariableBinding(AxString const& name) const;
    /// Owned by the record.
    virtual AxBindingsList const& variableBindingsFromLoad() const { return myVariableBindings; }
    /// Looks in the parameter data, then in the state data; null when there is none.
    virtual AxRwProperty* findProperty(AxString const& name) const;
    virtual AxRwProperties& parameterData() { return myParameterData; }
    virtual AxRwProperties const& parameterData() const { return myParameterData; }
    virtual AxRwProperties& stateData() { return myStateData; }
    virtual AxRwProperties const& stateData() const { return myStateData; }
    virtual void setPublishParameterData(bool publish) { assignSpecified(myPublishParameterData, publish); }
    virtual bool publishParameterData() const { return myPublishParameterData; }
    virtual void setUiFilename(AxString const& file) { assignSpecified(myUiFilename, file); }
    virtual AxString uiFilename() const { return myUiFilename.value(); }

protected:
    virtual AxZedSubObjectParameterList* createSubordinateObjectsList(AxSymbolString name,
                                                                      AxReaderWriterRegistry* registry);
    virtual AxZedSubObjectParameterList* createAttachedObjectsList(AxSymbolString name,
                                                                   AxReaderWriterRegistry* registry);
    virtual void rebuildArtPartList() const;
    /// Appends the parts that the actuators of a system and of the systems nested in it move.
    virtual void addArtPartsFromSystem(AxComponentSystemDescriptor* system, ArtPartList& parts) const;
    /// Wires each pair of different systems that the rule fits, unless they are wired already. Null is ignored.
    virtual void createAutomaticConnections(AxRwAutoConnection* rule);
    // ---- End of the virtual operations. ----

    /// For classes that copy themselves in a constructor: takes over what this class holds.
    AxZedObjectParameters(AxZedObjectParameters const& other, AxSymbolString name, AxReaderWriterRegistry* parent);
    /// For classes whose objects have another default.
    AxRwDeadReckonTypes& defaultDeadReckoningAlgorithm() { return myDrAlgorithm; }
    AxRwDeadReckonThresholds& defaultDeadReckoningThresholds() { return myDrThresholds; }
    /// Gives an inherited member the default of this class: the value counts as not specified.
    template <class Member, class Value>
    static void assignDefault(Member& member, Value const& value)
    {
        member = value;
        member.setValueSpecified(false, false);
    }
    /// Prints that the class could not be cloned.
    static void reportCloneFailure(std::type_info const& type);

public:
    AxZedObjectParameters* clone(char const* name, AxReaderWriterRegistry* registry) const
    {
        return clone(AxSymbolString(name), registry);
    }
    AxSimResourceManager& resourceManager() { return myResources; }
    /// The name under which the factory created the record, empty when it did not.
    AxString const& parameterType() const { return myParameterType; }
    void setParameterType(AxString const& type) { myParameterType = type; }
    bool isInitialized() const { return myRemoteSubComponentTypes != nullptr; }
    /// For a record that is read again: where it was read from this time.
    void setObjectNode(AxEnvironmentPtr const& env, AxEnvValuePtr const& node)
    {
        myEnvironment = env;
        myObjectNode = node;
    }
    /// Adds a copy behind those that are there.
    void addVariableBindingsFromLoad(AxRwVariableBindings const& bindings);
    /// Makes the user extension anew by its type name and lets it read `item` (nil: nothing). False after a warning.
    bool createStateRepositoryUserExtension(AxlObjPtr const& item, AxFilenameList const& files,
                                            AxBindingsList const& bindings);

    using AxReaderWriter::getData;
    using AxReaderWriter::getSelf;
    using AxReaderWriter::putData;
    void preGetSelf() override;
    void getSelf(AxlObjPtr const& expression, AxFilenameList const& files, AxBindingsList const& bindings) override;
    AxlObjPtr getData(AxlObjPtr const& items, AxFilenameList const& files, AxBindingsList const& bindings) override;
    /// Appends the type item and the variable bindings from load.
    void putData(std::string& out, int indent) override;
    char const* readerWriterType() const override { return "zed-object-param"; }

    static AxZedObjectParameters* creator(AxEnvironmentPtr env, AxEnvValuePtr* node);
    /// The host's factory, null until it sets one. It is never deleted here.
    static AxZedObjectParameterFactory* factory();
    static void setFactory(AxZedObjectParameterFactory* factory);
    /// Adds to the installed factory; a warning when there is none.
    static void addParameterCreatorFcn(AxString const& name, CreatorFcn creator);
    /// A new, initialised record that the caller owns; null, after a warning, without a factory or for an unknown name.
    static AxZedObjectParameters* createParameters(char const* typeName, AxEnvironmentPtr const& env = {},
                                                   AxEnvValuePtr* node = nullptr);
    /// Makes what `(name (parameter-type "...") item...)` tells, and reads it. Null after a warning.
    static AxZedObjectParameters* createParameters(AxlObjPtr const& list, AxFilenameList const& files,
                                                   AxBindingsList const& bindings);

private:
    static AxZedObjectParameterFactory* theFactory;

    struct Entry;
    static Entry const ourEntry;

    void copyFrom(AxZedObjectParameters const& other);
    void clearVariableBindings();
    bool takeItem(AxlObj const* item, AxBindingsList const& bindings);
    void finishReading(AxFilenameList const& files, AxBindingsList const& bindings);
    void reportDuplicateData() const;
    void inheritFrom(AxZedObjectParameters const& parent, bool takesDefaults);

    AxObjectType myObjectType;
    AxObjectType myMatchType;
    AxRwBoundingGeometryType myBoundingGeometryType{
        {"bounding-geometry-type", "", "Shape of the bounding geometry.", {0.0, 3.0}},
        AxSimBoundingGeometry::BoundingBox,
        registry()};
    AxRwBoundingVolume myBoundingVolume{{"bounding-volume", "m", "Box around the object in its body frame."},
                                        registry()};
    AxRwFormationType myFormation{{"formation", "", "Formation of a unit as the protocol counts them."}, registry()};
    AxRwAppearance myDefaultAppearance{{"default-appearance", "", "Appearance word of the protocol at the start."},
                                       AxEntityType::nullType(),
                                       registry()};
    AxRwForceType myForce{{"force", "", "Side: 0 other, 1 friendly, 2 opposing, 3 neutral.", {0.0, 30.0}}, registry()};
    AxRwString myCategory{{"category", "", "What the object is called in lists, in free words."}, registry()};
    AxRwString myEchelonLevel{{"echelon-level", "", "Level of a unit, in free words."}, registry()};
    AxRwBoolean myIsOrganized{{"is-organized", "", "Whether the object takes a place in an order of battle."},
                              registry()};
    AxRwReal myMinTickPeriod{{"min-tick-period", "s", "Shortest time between two ticks.", {0.0, axUnbounded}},
                             registry()};
    AxRwReal myMinTickPeriodVariance{
        {"min-tick-period-variance", "s", "Spread of the tick period.", {0.0, axUnbounded}}, registry()};
    AxRwDeadReckonTypes myDrAlgorithm{{"dr-algorithm", "", "How others extrapolate the object's motion.", {0.0, 9.0}},
                                      AxDeadReckonDrmFPW,
                                      registry()};
    AxRwNavigationParameters myNavigationParameters{{"navigation-parameters", "", "Limits of the path planner."},
                                                    registry()};
    AxRwDeadReckonThresholds myDrThresholds{{"dr-thresholds", "", "Errors at which the state is sent anew."},
                                            registry()};
    AxRwBoolean myDrAllowGuiOverrides{{"dr-allow-gui-overrides", "", "Whether users may change the thresholds."},
                                      registry()};
    AxRadioDescriptorList myRadios{{"radios", "", "Radios of the object."}, registry()};
    AxComponentSystemDescriptorList mySystems{{"systems", "", "Component systems that the object uses."}, registry()};
    AxComponentDescriptorList mySensors{{"sensors", "", "Components that perceive."}, registry()};
    AxComponentDescriptorList myControllers{{"controllers", "", "Components that decide."}, registry()};
    AxComponentDescriptorList myActuators{{"actuators", "", "Components that act."}, registry()};
    AxConnectionDescriptorList myConnections{{"connections", "", "Wires between components and systems."}, registry()};
    AxRwReal myMass{{"mass", "kg", "Mass of the object.", {0.0, axUnbounded}}, 5000.0, registry()};
    AxRwSensorSignatureList mySensorSignatures{{"sensor-signatures", "", "How strongly the object shows by domain."},
                                               registry()};
    AxRwString myEngagementRules{
        {"engagement-rules", "", "When the object may fire, by the engine's names."}, "fire-at-will", registry()};
    AxSimResourceManager myResources{{"resources", "", "What the object consumes."}, registry()};
    AxRwString myExtensionType{
        {"state-repository-extension-type", "", "Type of what a project adds to the state repository."},
        "default-zed-state-repository-user-extension",
        registry()};
    AxRwBoolean myTaskedBySuperior{
        {"tasked-by-superior-upon-task-complete", "", "Whether the superior gives the next task."}, true, registry()};
    AxRwReal myUnderFireTime{
        {"under-fire-time", "s", "How long the object counts as under fire.", {0.0, axUnbounded}}, 120.0, registry()};
    AxRwReal myUnderFireDistance{
        {"under-fire-distance", "m", "How near fire must come to count.", {0.0, axUnbounded}}, 1000.0, registry()};
    AxSimSector myInitialSector{{"initial-sector-of-responsibility", "", "Sector that the object watches first."},
                                registry()};
    AxReaderWriterFile myTaskExecutionRulesFile{
        {"task-execution-rules", "", "File of the rules by which tasks exclude each other."}, registry()};
    AxTaskExecutionRules myTaskExecutionRules;
    AutoConnectionList myAutoConnections{{"auto-connections", "", "Rules that wire systems to each other."},
                                         registry()};
    AxRwProperties myParameterData{{"parameter-data", "", "Free-form values that do not change."}, registry()};
    AxRwProperties myStateData{{"state-data", "", "Free-form values of the object's state."}, registry()};
    AxRwReal myRangeRingTickTime{
        {"range-ring-publisher-tick-time", "s", "Time between two range rings; 0: the engine's.", {0.0, axUnbounded}},
        registry()};
    AxRwBoolean myPublishParameterData{{"publish-parameter-data", "", "Whether parameter data go on the network."},
                                       registry()};
    AxRwBoolean myUnnamed{{"", "", "Has no keyword: it takes part in comparison and is never read or written."},
                          registry()};
    AxRwString myDisplayName{{"display-name", "", "Name that users see."}, registry()};
    AxRwString myDisplayDescription{{"display-description", "", "What users are told of the object."}, registry()};
    AxRwString myUiFilename{{"ui-filename", "", "File of the object's user interface."}, registry()};

    AxString myParameterType;
    AxBindingsList myVariableBindings;
    AxEnvironmentPtr myEnvironment;
    AxEnvValuePtr myObjectNode;
    mutable ArtPartList myArtParts;
    AxlObjPtr myExtensionItem; // set aside until the extension that reads it exists
    std::unique_ptr<AxZedObjectSubComponentTypes> myLocalSubComponentTypes;
    std::unique_ptr<AxZedObjectSubComponentTypes> myRemoteSubComponentTypes;
    std::unique_ptr<AxZedSubObjectParameterList> mySubordinateObjects;
    std::unique_ptr<AxZedSubObjectParameterList> myAttachedObjects;
    std::unique_ptr<AxZedStateRepositoryUserExtension> myUserExtension;
};
