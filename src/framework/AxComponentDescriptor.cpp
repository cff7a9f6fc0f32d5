#include "AxComponentDescriptor.h"

#include "AxComponentDescriptorFactory.h"
#include "AxReaderWriterFactory.h"
#include "AxStreams.h"
#include "AxTypeItem.h"
#include "AxlObj.h"

namespace
{
constexpr char const* theComponentType = "component-descriptor-type";
AxComponentDescriptorFactory* theFactory = nullptr;

/// For descriptors of every class: all values stand in the registry, and only the type item needs cells.
AxTypeOps descriptorOps()
{
    AxTypeOps ops;
    ops.create = [](AxSymbolString name, AxReaderWriterRegistry* registry) -> AxReaderWriter*
    { return new AxComponentDescriptor(name, registry); };
    ops.copy = [](AxReaderWriter& to, AxReaderWriter const& from) { to.assign(from); };
    ops.equal = [](AxReaderWriter const& a, AxReaderWriter const& b) { return typeid(a) == typeid(b) && a == b; };
    ops.isForEachClass = true;
    ops.leadHead = theComponentType;
    ops.ownItem = [](AxReaderWriter&, AxlObj const* item, std::size_t index, AxBindingsList&)
    {
        if (index == 0)
        {
            AxTypeItem::check(item, theComponentType);
        }
        return index == 0;
    };
    return ops;
}

AxTypeEntry<AxComponentDescriptor> const theDescriptorEntry(descriptorOps());
} // namespace

AxComponentDescriptor::AxComponentDescriptor(AxSymbolString name, AxReaderWriterRegistry* parent)
    : AxRecord(name, parent, false)
{
    registry()->setLocalData();
    myIsEnabled.setValueSpecified(true, false);
    myCreateComponent.setValueSpecified(true, false);
}

AxComponentDescriptor::AxComponentDescriptor(AxString const& name, AxReaderWriterRegistry* parent)
    : AxComponentDescriptor(AxSymbolString(name), parent)
{
}

AxComponentDescriptor::AxComponentDescriptor(char const* name, AxReaderWriterRegistry* parent)
    : AxComponentDescriptor(AxSymbolString(name), parent)
{
}

AxComponentDescriptor::AxComponentDescriptor(AxComponentDescriptor const& other, AxReaderWriterRegistry* parent)
    : AxComponentDescriptor(other.AxReaderWriter::name(), parent)
{
    assign(other);
}

AxComponentDescriptor::~AxComponentDescriptor() = default;

AxComponentDescriptor& AxComponentDescriptor::operator=(AxComponentDescriptor const& other)
{
    assign(other);
    return *this;
}

AxString AxComponentDescriptor::type() const
{
    return "component-descriptor";
}

AxComponentDescriptor* AxComponentDescriptor::clone(AxReaderWriterRegistry* registry) const
{
    return new AxComponentDescriptor(*this, registry);
}

AxComponentDescriptor* AxComponentDescriptor::creator()
{
    return new AxComponentDescriptor(AxSymbolString(), nullptr);
}

bool AxComponentDescriptor::init()
{
    return true;
}

void AxComponentDescriptor::setComponentType(AxString const& type)
{
    myComponentType = type;
}

AxString const& AxComponentDescriptor::componentType() const
{
    return myComponentType.value();
}

void AxComponentDescriptor::setMinTickPeriod(double period)
{
    assignSpecified(myMinTickPeriod, period);
}

double AxComponentDescriptor::minTickPeriod() const
{
    return myMinTickPeriod;
}

void AxComponentDescriptor::setMinTickPeriodVariance(double variance)
{
    assignSpecified(myMinTickPeriodVariance, variance);
}

double AxComponentDescriptor::minTickPeriodVariance() const
{
    return myMinTickPeriodVariance;
}

void AxComponentDescriptor::setTickPeriodUsesRealTime(bool usesRealTime)
{
    assignSpecified(myTickPeriodUsesRealTime, usesRealTime);
}

bool AxComponentDescriptor::tickPeriodUsesRealTime() const
{
    return myTickPeriodUsesRealTime;
}

AxString const& AxComponentDescriptor::processStateRepositoryName() const
{
    return myProcessStateRepositoryName.value();
}

void AxComponentDescriptor::setProcessStateRepositoryName(AxString const& name)
{
    myProcessStateRepositoryName = name;
}

AxString const& AxComponentDescriptor::processStateRepositoryType() const
{
    return myProcessStateRepositoryType.value();
}

void AxComponentDescriptor::setProcessStateRepositoryType(AxString const& type)
{
    myProcessStateRepositoryType = type;
}

void AxComponentDescriptor::setIsEnabled(bool enabled)
{
    assignSpecified(myIsEnabled, enabled);
}

bool AxComponentDescriptor::isEnabled() const
{
    return myIsEnabled;
}

void AxComponentDescriptor::setDebugActive(bool active)
{
    myDebugDetail = active;
}

bool AxComponentDescriptor::debugActive() const
{
    return myDebugDetail;
}

void AxComponentDescriptor::setMinTaskVisualizationTickPeriod(double period)
{
    assignSpecified(myMinTaskVisualizationTickPeriod, period);
}

double AxComponentDescriptor::minTaskVisualizationTickPeriod() const
{
    return myMinTaskVisualizationTickPeriod;
}

void AxComponentDescriptor::setCreateComponent(bool create)
{
    assignSpecified(myCreateComponent, create);
}

bool AxComponentDescriptor::createComponent() const
{
    return myCreateComponent;
}

void AxComponentDescriptor::setCreateOnRemoteObject(bool create)
{
    assignSpecified(myCreateOnRemoteObject, create);
}

bool AxComponentDescriptor::createOnRemoteObject() const
{
    return myCreateOnRemoteObject;
}

void AxComponentDescriptor::putData(std::string& out, int indent)
{
    AxTypeItem::write(out, indent, theComponentType, type());
}

AxlObjPtr AxComponentDescriptor::getData(AxlObjPtr const& items, AxFilenameList const&, AxBindingsList const&)
{
    AxTypeItem::check(items->car(), theComponentType);
    return AxlObjPtr(items->cdr());
}

char const* AxComponentDescriptor::readerWriterType() const
{
    return "component-descriptor";
}

char const* AxComponentDescriptor::xmlType() const
{
    return "componentDescriptor";
}

AxComponentDescriptorFactory* AxComponentDescriptor::factory()
{
    return theFactory;
}

void AxComponentDescriptor::setFactory(AxComponentDescriptorFactory* factory)
{
    theFactory = factory;
}

void AxComponentDescriptor::addComponentDescriptorCreatorFcn(AxString const& type, CreatorFcn creator)
{
    if (!theFactory)
    {
        AxWarn("Can't add component descriptor creator without a component descriptor factory.\n");
        return;
    }
    theFactory->addCreatorFcn(type, creator);
}

AxComponentDescriptor* AxComponentDescriptor::createComponentDescriptor(char const* type)
{
    if (!theFactory)
    {
        AxWarn("Can't create component descriptor without a component descriptor factory.\n");
        return nullptr;
    }
    AxString const name(type);
    return AxTypeItem::made(
        AxTypeItem::Scope::cell(), name, [&] { return theFactory->createComponentDescriptor(name); },
        [](AxComponentDescriptor& descriptor) { descriptor.init(); });
}

AxComponentDescriptor* AxComponentDescriptor::createComponentDescriptor(AxlObjPtr const& expression,
                                                                        AxFilenameList const& files,
                                                                        AxBindingsList const& bindings)
{
    if (!theFactory)
    {
        AxWarn("Can't create component descriptor without a component descriptor factory.\n");
        return nullptr;
    }
    AxlObj const* const typeCell = AxTypeItem::typeCell(expression);
    AxlObj const* const place = AxTypeItem::placeOf(typeCell, expression);
    AxString const type = typeCell->pname();
    return AxTypeItem::made(
        place, type,
        [&]
        {
            AxTypeItem::Scope const scope(place);
            return createComponentDescriptor(type.c_str());
        },
        [&](AxComponentDescriptor& descriptor) { descriptor.getSelf(expression, files, bindings); });
}
