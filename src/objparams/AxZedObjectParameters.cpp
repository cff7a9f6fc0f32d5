#include "AxZedObjectParameters.h"

#include "AxStreams.h"

#include <cstring>

namespace
{
constexpr AxKeyword theLocalObjects{"local-objects", "", "Software that runs the object where it is simulated."};
constexpr AxKeyword theSubordinates{"subordinate-objects", "", "Objects that are created as subordinates of this one."};
constexpr AxKeyword theAttached{"attached-objects", "", "Objects that are created attached to this one."};
constexpr AxKeyword theRemoteObjects{"remote-objects", "", "Software that runs the object's remote representation."};
constexpr AxKeyword theExtension{"user-extension", "", "What the host keeps with the object's state besides."};

AxSymbolString extensionName()
{
    static AxSymbolString const name(theExtension.text);
    return name;
}

/// Registers nothing new: `made` stands in `registry` already. It is part of the record, but not of its equality.
template <class T>
void adopt(std::unique_ptr<T>& member, T* made, AxReaderWriterRegistry& registry, AxKeyword const& description)
{
    member.reset(made);
    if (made)
    {
        made->setValueSpecified(false, false);
        registry.setCompared(made, false);
        registry.describe(made, description, typeid(AxZedObjectParameters));
    }
}
} // namespace

AxZedObjectParameters::AxZedObjectParameters(AxSymbolString name, AxReaderWriterRegistry* parent,
                                             AxEnvironmentPtr const& env, AxEnvValuePtr const* node)
    : AxRecord(name, parent, false),
      myTaskExecutionRules("task-execution-rules-data", nullptr),
      myEnvironment(env),
      myObjectNode(node ? *node : AxEnvValuePtr())
{
    registry()->setLocalData();
    myTaskExecutionRulesFile.setContent(&myTaskExecutionRules);
    myBoundingGeometryType.setValueSpecified(true, false);
    myUnderFireTime.setReadonly(true);
    myUnderFireDistance.setReadonly(true);
}

AxZedObjectParameters::AxZedObjectParameters(AxString const& name, AxReaderWriterRegistry* parent,
                                             AxEnvironmentPtr const& env, AxEnvValuePtr const* node)
    : AxZedObjectParameters(AxSymbolString(name), parent, env, node)
{
}

AxZedObjectParameters::AxZedObjectParameters(char const* name, AxReaderWriterRegistry* parent,
                                             AxEnvironmentPtr const& env, AxEnvValuePtr const* node)
    : AxZedObjectParameters(AxSymbolString(name), parent, env, node)
{
}

AxZedObjectParameters::AxZedObjectParameters(AxZedObjectParameters const& other, AxSymbolString name,
                                             AxReaderWriterRegistry* parent)
    : AxZedObjectParameters(name, parent)
{
    copyFrom(other);
}

AxZedObjectParameters::~AxZedObjectParameters()
{
    clearVariableBindings();
}

AxZedObjectParameters& AxZedObjectParameters::operator=(AxZedObjectParameters const& other)
{
    if (this != &other)
    {
        copyFrom(other);
    }
    return *this;
}

void AxZedObjectParameters::copyFrom(AxZedObjectParameters const& other)
{
    if (other.isInitialized() && !isInitialized())
    {
        init();
    }
    if (other.myUserExtension)
    {
        myUserExtension.reset();
        myUserExtension.reset(other.myUserExtension->clone(extensionName(), registry()));
        registry()->describe(myUserExtension.get(), theExtension, typeid(AxZedObjectParameters));
    }
    assign(other);
    myParameterType = other.myParameterType;
    myObjectType = other.myObjectType;
    myMatchType = other.myMatchType;
    clearVariableBindings();
    for (AxRwVariableBindings const* bindings : other.myVariableBindings)
    {
        addVariableBindingsFromLoad(*bindings);
    }
}

AxZedObjectParameters* AxZedObjectParameters::clone(AxSymbolString name, AxReaderWriterRegistry* registry) const
{
    try
    {
        auto made = std::make_unique<AxZedObjectParameters>(name, registry);
        *made = *this;
        return made.release();
    }
    catch (std::bad_alloc const&)
    {
        reportCloneFailure(typeid(AxZedObjectParameters));
        return nullptr;
    }
}

AxZedObjectParameters* AxZedObjectParameters::clone(AxString const& name, AxReaderWriterRegistry* registry) const
{
    return clone(AxSymbolString(name), registry);
}

void AxZedObjectParameters::reportCloneFailure(std::type_info const& type)
{
    // The encoded name of a class in no namespace is its length and its name.
    AxWarn("Out of memory !?! in %s::clone()\n", type.name() + std::strspn(type.name(), "0123456789"));
}

bool AxZedObjectParameters::init()
{
    if (!createLocalSubComponentTypes())
    {
        AxWarn("Couldn't create local composed object types\n");
        return false;
    }
    if (!mySubordinateObjects)
    {
        adopt(mySubordinateObjects, createSubordinateObjectsList(theSubordinates.text, registry()), *registry(),
              theSubordinates);
    }
    if (!myAttachedObjects)
    {
        adopt(myAttachedObjects, createAttachedObjectsList(theAttached.text, registry()), *registry(), theAttached);
    }
    if (!createRemoteSubComponentTypes())
    {
        AxWarn("Couldn't create remote composed object types\n");
        return false;
    }
    return true;
}

bool AxZedObjectParameters::createLocalSubComponentTypes()
{
    myLocalSubComponentTypes.reset();
    adopt(myLocalSubComponentTypes, new AxZedObjectSubComponentTypes(theLocalObjects.text, registry()), *registry(),
          theLocalObjects);
    return true;
}

bool AxZedObjectParameters::createRemoteSubComponentTypes()
{
    myRemoteSubComponentTypes.reset();
    adopt(myRemoteSubComponentTypes, new AxZedObjectSubComponentTypes(theRemoteObjects.text, registry()), *registry(),
          theRemoteObjects);
    return true;
}

AxZedSubObjectParameterList* AxZedObjectParameters::createSubordinateObjectsList(AxSymbolString name,
                                                                                 AxReaderWriterRegistry* registry)
{
    return new AxZedSubObjectParameterList(name, registry);
}

AxZedSubObjectParameterList* AxZedObjectParameters::createAttachedObjectsList(AxSymbolString name,
                                                                              AxReaderWriterRegistry* registry)
{
    return new AxZedSubObjectParameterList(name, registry);
}

AxString AxZedObjectParameters::type() const
{
    return "zed-object-param";
}

void AxZedObjectParameters::setSystemDescriptorList(AxComponentSystemDescriptorList const& list)
{
    assignSpecified(mySystems, list);
}

void AxZedObjectParameters::setSensorDescriptorList(AxComponentDescriptorList const& list)
{
    assignSpecified(mySensors, list);
}

void AxZedObjectParameters::setControllerDescriptorList(AxComponentDescriptorList const& list)
{
    assignSpecified(myControllers, list);
}

void AxZedObjectParameters::setActuatorDescriptorList(AxComponentDescriptorList const& list)
{
    assignSpecified(myActuators, list);
}

void AxZedObjectParameters::setConnectionDescriptorList(AxConnectionDescriptorList const& list)
{
    assignSpecified(myConnections, list);
}

void AxZedObjectParameters::setNavigationParameters(AxRwNavigationParameters const& parameters)
{
    assignSpecified(myNavigationParameters, parameters);
}

void AxZedObjectParameters::setDeadReckoningThresholds(AxRwDeadReckonThresholds const& thresholds)
{
    assignSpecified(myDrThresholds, thresholds);
}

void AxZedObjectParameters::setSubordinateObjects(AxZedSubObjectParameterList const& objects)
{
    if (mySubordinateObjects)
    {
        assignSpecified(*mySubordinateObjects, objects);
    }
}

void AxZedObjectParameters::setAttachedObjects(AxZedSubObjectParameterList const& objects)
{
    if (myAttachedObjects)
    {
        assignSpecified(*myAttachedObjects, objects);
    }
}

Ax3dBoundingVolume const* AxZedObjectParameters::boundingVolume() const
{
    bool const isGiven = myBoundingVolume.valueSpecified() || myBoundingVolume.inherited();
    return isGiven ? &myBoundingVolume.volume() : nullptr;
}

void AxZedObjectParameters::setBoundingVolume(AxVector64 const& min, AxVector64 const& max)
{
    AxZedObjectParameters::setBoundingVolume(Ax3dBoundingVolume(min, max));
}

void AxZedObjectParameters::setBoundingVolume(Ax3dBoundingVolume const& volume)
{
    myBoundingVolume.setVolume(volume);
    myBoundingVolume.setValueSpecified(true, false);
}

AxSimBoundingGeometry::AxSimBoundingGeometryType AxZedObjectParameters::boundingGeometryType() const
{
    return myBoundingGeometryType.value();
}

void AxZedObjectParameters::setBoundingGeometryType(AxSimBoundingGeometry::AxSimBoundingGeometryType type)
{
    assignSpecified(myBoundingGeometryType, type);
}

double AxZedObjectParameters::draft() const
{
    // Body z points down, so the lowest point is the largest z.
    Ax3dBoundingVolume const* const volume = boundingVolume();
    return volume ? volume->offset().z() + volume->lowerExtent() : 0.0;
}

void AxZedObjectParameters::setAppearance(unsigned long appearance)
{
    assignSpecified(myDefaultAppearance, static_cast<unsigned>(appearance));
}

void AxZedObjectParameters::setResourceManager(AxSimResourceManager const& resources)
{
    assignSpecified(myResources, resources);
}

void AxZedObjectParameters::setStateRepositoryUserExtension(AxZedStateRepositoryUserExtension* extension)
{
    if (extension == myUserExtension.get())
    {
        return;
    }
    myUserExtension.reset(extension);
    if (extension)
    {
        if (AxReaderWriterRegistry* const holder = extension->parentRegistry())
        {
            holder->removeEntry(extension);
        }
        extension->setName(extensionName().string());
        registry()->addEntry(extensionName(), extension);
        registry()->describe(extension, theExtension, typeid(AxZedObjectParameters));
    }
}

void AxZedObjectParameters::setInitialSectorOfResponsibility(AxSimSector const& sector)
{
    assignSpecified(myInitialSector, sector);
}

void AxZedObjectParameters::setTaskExecutionRulesFilename(AxFilename const& file)
{
    assignSpecified(myTaskExecutionRulesFile, file);
}

AxString AxZedObjectParameters::findVariableBinding(AxString const& name) const
{
    AxSymbolString const symbol = AxSymbolString::find(name.string());
    for (AxRwVariableBindings const* bindings : myVariableBindings)
    {
        if (!symbol.isNull() && bindings->find(symbol))
        {
            return bindings->stringValue(symbol);
        }
    }
    return AxString::nullString();
}

AxRwProperty* AxZedObjectParameters::findProperty(AxString const& name) const
{
    AxRwProperty* const property = myParameterData.find(name);
    return property ? property : myStateData.find(name);
}

void AxZedObjectParameters::addVariableBindingsFromLoad(AxRwVariableBindings const& bindings)
{
    myVariableBindings.push_back(new AxRwVariableBindings(bindings));
}

void AxZedObjectParameters::clearVariableBindings()
{
    for (AxRwVariableBindings const* bindings : myVariableBindings)
    {
        delete bindings;
    }
    myVariableBindings.clear();
}
