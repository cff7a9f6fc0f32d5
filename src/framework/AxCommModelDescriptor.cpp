#include "AxCommModelDescriptor.h"

#include "AxTypeItem.h"
#include "AxUnknownType.h"
#include "AxlObj.h"

#include <map>

namespace
{
constexpr char const* theCommModelType = "comm-model-descriptor-type";

using Creators = std::map<AxString, AxCommModelDescriptor::CreatorFcn>;

Creators& creators()
{
    static Creators map{{"comm-model-descriptor", &AxCommModelDescriptor::creator}};
    return map;
}

/// Null, after a report at `place`, for a type without a creator.
AxCommModelDescriptor* create(AxString const& type, AxlObj const* place)
{
    char const* const stated = "could not create signature propagator descriptor\n";
    auto const found = creators().find(type);
    try
    {
        if (AxCommModelDescriptor* const made = found != creators().end() && found->second ? found->second() : nullptr)
        {
            return made;
        }
    }
    catch (...)
    {
        AxDiagnostics::reportStated(AxTypeItem::creationFailed(place, type.string(), axReason()), stated);
        return nullptr;
    }
    std::vector<std::string_view> known;
    for (auto const& [name, creator] : creators())
    {
        known.push_back(name.string());
    }
    axReportUnknownType(type.string(), place, stated, known);
    return nullptr;
}
} // namespace

AxCommModelDescriptor::AxCommModelDescriptor(AxSymbolString name, AxReaderWriterRegistry* parent)
    : AxReaderWriter(name, parent)
{
    registry()->setLocalData();
}

AxCommModelDescriptor::AxCommModelDescriptor(AxCommModelDescriptor const& other, AxReaderWriterRegistry* parent)
    : AxCommModelDescriptor(other.AxReaderWriter::name(), parent)
{
    assign(other);
}

AxCommModelDescriptor::~AxCommModelDescriptor() = default;

AxCommModelDescriptor& AxCommModelDescriptor::operator=(AxCommModelDescriptor const& other)
{
    assign(other);
    return *this;
}

AxString AxCommModelDescriptor::type() const
{
    return "comm-model-descriptor";
}

AxCommModelDescriptor* AxCommModelDescriptor::clone(AxReaderWriterRegistry* registry) const
{
    return new AxCommModelDescriptor(*this, registry);
}

AxCommModelDescriptor* AxCommModelDescriptor::creator()
{
    return new AxCommModelDescriptor(AxSymbolString(), nullptr);
}

double AxCommModelDescriptor::maxRange() const
{
    return myMaxRange;
}

void AxCommModelDescriptor::setMaxRange(double range)
{
    assignSpecified(myMaxRange, range);
}

bool AxCommModelDescriptor::lineOfSightRequired() const
{
    return myLineOfSightRequired;
}

void AxCommModelDescriptor::setLineOfSightRequired(bool required)
{
    assignSpecified(myLineOfSightRequired, required);
}

double AxCommModelDescriptor::transmissionDelay() const
{
    return myTransmissionDelay;
}

void AxCommModelDescriptor::setTransmissionDelay(double delay)
{
    assignSpecified(myTransmissionDelay, delay);
}

double AxCommModelDescriptor::successProbability() const
{
    return mySuccessProbability;
}

void AxCommModelDescriptor::setSuccessProbability(double probability)
{
    assignSpecified(mySuccessProbability, probability);
}

void AxCommModelDescriptor::putData(std::string& out, int indent)
{
    AxTypeItem::write(out, indent, theCommModelType, type());
}

AxlObjPtr AxCommModelDescriptor::getData(AxlObjPtr const& items, AxFilenameList const&, AxBindingsList const&)
{
    AxTypeItem::check(items->car(), theCommModelType);
    return AxlObjPtr(items->cdr());
}

void AxCommModelDescriptor::addCreatorFcn(AxString const& type, CreatorFcn creator)
{
    creators().insert_or_assign(type, creator);
}

AxCommModelDescriptor* AxCommModelDescriptor::createCommModelDescriptor(AxlObjPtr const& expression,
                                                                        AxFilenameList const& files,
                                                                        AxBindingsList const& bindings)
{
    AxlObj const* const typeCell = AxTypeItem::typeCell(expression);
    AxString const type = typeCell->pname();
    AxlObj const* const place = AxTypeItem::placeOf(typeCell, expression);
    return AxTypeItem::made(
        place, type, [&] { return create(type, place); },
        [&](AxCommModelDescriptor& descriptor) { descriptor.getSelf(expression, files, bindings); });
}
