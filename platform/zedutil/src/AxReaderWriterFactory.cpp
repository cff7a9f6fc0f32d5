#include "AxReaderWriterFactory.h"

#include "AxRegistryShape.h"
#include "AxRwBoolean.h"
#include "AxRwEntityType.h"
#include "AxRwInt.h"
#include "AxRwList.h"
#include "AxRwObjectType.h"
#include "AxRwOffsetVector.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxRwTaitBryan.h"
#include "AxRwUnsigned.h"
#include "AxRwVector.h"

#include <cstring>
#include <cxxabi.h>
#include <memory>
#include <typeindex>
#include <unordered_map>

namespace
{
AxReaderWriterFactory* ourFactory = nullptr;
AxReaderWriterFactory::Maker ourMaker = nullptr;
bool ourComparesByType = true;

/// A table of virtual functions, by the places of its entries.
using FunctionTable = void const* const*;

FunctionTable functionsOf(AxReaderWriter const& rw)
{
    return *reinterpret_cast<FunctionTable const*>(&rw);
}

// Places of the hooks of cells and of those of trees; the check of the slot order guards them.
constexpr std::size_t getSelfOfCells = 7;
constexpr std::size_t getDataOfTrees = 13;
constexpr std::size_t getDataOfCells = 14;
constexpr std::size_t unrecognizedItem = 39;
constexpr std::size_t getLocalData = 62;

/// Operations by dynamic type. A class without an entry of its own is served by that of the nearest base that has one;
/// what was found is remembered by the object's table of virtual functions.
class TypeTable
{
public:
    static TypeTable& instance()
    {
        static auto* const table = new TypeTable; // entered by static objects, used by static objects
        return *table;
    }
    void enter(std::type_info const& type, AxTypeOps const& ops)
    {
        myEntries.insert_or_assign(std::type_index(type), ops);
        myFound.clear();
        myLastTable = nullptr;
    }
    AxTypeInfo const& find(AxReaderWriter const& rw)
    {
        FunctionTable const table = functionsOf(rw);
        if (table != myLastTable)
        {
            auto found = myFound.find(table);
            if (found == myFound.end())
            {
                found = myFound.emplace(table, describe(rw)).first;
            }
            myLastTable = table;
            myLast = &found->second;
        }
        return *myLast;
    }

private:
    AxTypeOps const* search(std::type_info const& type) const
    {
        if (auto const found = myEntries.find(std::type_index(type)); found != myEntries.end())
        {
            return &found->second;
        }
        if (auto const* single = dynamic_cast<abi::__si_class_type_info const*>(&type))
        {
            return search(*single->__base_type);
        }
        if (auto const* several = dynamic_cast<abi::__vmi_class_type_info const*>(&type))
        {
            return search(*several->__base_info[0].__base_type); // the reader/writer is the first base
        }
        return nullptr;
    }
    AxTypeInfo describe(AxReaderWriter const& rw)
    {
        AxTypeInfo info;
        info.ops = search(typeid(rw));
        info.reading = readingOf(rw, info.ops);
        AxReaderWriter const plain{AxSymbolString(), nullptr};
        auto const overrides = [&](std::size_t hook) { return functionsOf(rw)[hook] != functionsOf(plain)[hook]; };
        info.readsTrees = overrides(getDataOfTrees);
        info.takesUnknown = overrides(unrecognizedItem);
        return info;
    }
    static AxTypeInfo::Reading readingOf(AxReaderWriter const& rw, AxTypeOps const* ops)
    {
        bool const hasElements = dynamic_cast<AxRwList const*>(&rw) != nullptr;
        bool const isValue = rw.isValue();
        using Reading = AxTypeInfo::Reading;
        static std::map<std::type_index, Reading> const values{
            {typeid(AxRwReal), Reading::Real},           {typeid(AxRwInt), Reading::Int},
            {typeid(AxRwUnsigned), Reading::Unsigned},   {typeid(AxRwBoolean), Reading::Boolean},
            {typeid(AxRwString), Reading::String},       {typeid(AxRwVector), Reading::Vector},
            {typeid(AxRwOffsetVector), Reading::Vector}, {typeid(AxRwObjectType), Reading::ObjectType}};
        if (auto const found = values.find(typeid(rw)); found != values.end())
        {
            return found->second;
        }
        FunctionTable const own = functionsOf(rw);
        if (hasElements)
        {
            if (!ops || !ops->readElement || !ops->create)
            {
                return Reading::Cells;
            }
            std::unique_ptr<AxReaderWriter> const model(ops->create(AxSymbolString(), nullptr));
            FunctionTable const known = functionsOf(*model);
            bool const same = own[getSelfOfCells] == known[getSelfOfCells] &&
                              own[getDataOfCells] == known[getDataOfCells] && own[getLocalData] == known[getLocalData];
            return same ? Reading::List : Reading::Cells;
        }
        if (isValue)
        {
            return Reading::Cells;
        }
        std::unique_ptr<AxReaderWriter> const model(ops && ops->ownItem && ops->create
                                                        ? ops->create(AxSymbolString(), nullptr)
                                                        : new AxReaderWriter(AxSymbolString(), nullptr));
        FunctionTable const known = functionsOf(*model);
        bool const same = own[getSelfOfCells] == known[getSelfOfCells] && own[getDataOfCells] == known[getDataOfCells];
        return same ? Reading::Record : Reading::Cells;
    }

    std::map<std::type_index, AxTypeOps> myEntries;
    std::unordered_map<void const*, AxTypeInfo> myFound;
    void const* myLastTable = nullptr;
    AxTypeInfo const* myLast = nullptr;
};

AxTypeEntry<AxRwReal> const realEntry;
AxTypeEntry<AxRwInt> const intEntry;
AxTypeEntry<AxRwUnsigned> const unsignedEntry;
AxTypeEntry<AxRwBoolean> const booleanEntry;
AxTypeEntry<AxRwString> const stringEntry;
AxTypeEntry<AxRwVector> const vectorEntry;
AxTypeEntry<AxRwTaitBryan> const taitBryanEntry;
AxTypeEntry<AxRwObjectType> const objectTypeEntry;
AxTypeEntry<AxRwEntityType> const entityTypeEntry;
AxTypeEntry<AxRwList> const listEntry;

std::string ownText(AxReaderWriter const& rw)
{
    std::string text;
    const_cast<AxReaderWriter&>(rw).putData(text, 0);
    return text;
}
} // namespace

AxTypeEntryBase::AxTypeEntryBase(std::type_info const& type, AxTypeOps const& ops)
{
    TypeTable::instance().enter(type, ops);
}

AxReaderWriterFactory* AxReaderWriter::factory()
{
    return ourFactory ? ourFactory : AxReaderWriterFactory::makeDefault();
}

void AxReaderWriter::setFactory(AxReaderWriterFactory* factory)
{
    constexpr std::size_t compareReaderWriter = 5; // its slot
    static AxReaderWriterFactory const plain(false);
    auto const functions = [](AxReaderWriterFactory const& of) { return *reinterpret_cast<FunctionTable const*>(&of); };
    ourFactory = factory;
    ourComparesByType = !factory || functions(*factory)[compareReaderWriter] == functions(plain)[compareReaderWriter];
}

bool AxReaderWriterFactory::comparesByType()
{
    return ourComparesByType;
}

void AxReaderWriterFactory::setDefaultMaker(Maker maker)
{
    ourMaker = maker;
}

AxReaderWriterFactory* AxReaderWriterFactory::makeDefault()
{
    static AxReaderWriterFactory* const made = ourMaker ? ourMaker() : new AxReaderWriterFactory(true);
    return made;
}

AxReaderWriterFactory::AxReaderWriterFactory(bool withBuiltIns)
{
    if (!withBuiltIns)
    {
        return;
    }
    addType("AxRwReal", AxTypeOps::withCreator<AxRwReal>());
    addType("AxRwInt", AxTypeOps::withCreator<AxRwInt>());
    addType("AxRwUnsigned", AxTypeOps::withCreator<AxRwUnsigned>());
    addType("AxRwBoolean", AxTypeOps::withCreator<AxRwBoolean>());
    addType("AxRwString", AxTypeOps::withCreator<AxRwString>());
    addType("AxRwVector", AxTypeOps::withCreator<AxRwVector>());
    addType("AxRwOffsetVector", AxTypeOps::withCreator<AxRwOffsetVector>());
    addType("AxRwTaitBryan", AxTypeOps::withCreator<AxRwTaitBryan>());
    addType("AxRwObjectType", AxTypeOps::withCreator<AxRwObjectType>());
    addType("AxRwEntityType", AxTypeOps::withCreator<AxRwEntityType>());
    for (char const* scalar : {"AxRwReal", "AxRwInt", "AxRwUnsigned", "AxRwBoolean", "AxRwString"})
    {
        mapRwToXml(scalar, scalar);
    }
    mapRwToXml("AxRwVector", "vector");
    mapRwToXml("AxRwOffsetVector", "offsetVector");
    mapRwToXml("AxRwTaitBryan", "taitBryan");
    mapRwToXml("AxRwObjectType", "objectType");
    mapRwToXml("AxRwEntityType", "entityType");
}

void AxReaderWriterFactory::addType(AxString const& type, AxTypeOps const& ops)
{
    if (myTypes.insert_or_assign(type, ops).second)
    {
        myOrder.push_back(type);
    }
}

bool AxReaderWriterFactory::knowsType(AxString const& type) const
{
    return find(type) != nullptr;
}

std::list<AxString> AxReaderWriterFactory::typeNames() const
{
    return myOrder;
}

AxTypeOps const* AxReaderWriterFactory::find(AxString const& type) const
{
    auto const found = myTypes.find(type);
    return found == myTypes.end() ? nullptr : &found->second;
}

std::list<AxString> AxReaderWriterFactory::xmlTypes() const
{
    std::list<AxString> types;
    for (auto const& [rwType, xmlType] : myXmlTypes)
    {
        types.push_back(xmlType);
    }
    return types;
}

AxString AxReaderWriterFactory::mapXmlToRwType(AxString const& xmlType) const
{
    for (auto const& [rwType, mapped] : myXmlTypes)
    {
        if (mapped == xmlType)
        {
            return rwType;
        }
    }
    return {};
}

AxString AxReaderWriterFactory::mapRwToXmlType(AxString const& rwType) const
{
    auto const found = myXmlTypes.find(rwType);
    return found == myXmlTypes.end() ? AxString() : found->second;
}

void AxReaderWriterFactory::mapRwToXml(AxString const& rwType, AxString const& xmlType)
{
    myXmlTypes.insert_or_assign(rwType, xmlType);
}

AxReaderWriter* AxReaderWriterFactory::createItem(AxString const& type, AxString const& name,
                                                  AxReaderWriterRegistry* registry)
{
    AxTypeOps const* const ops = find(type);
    return ops && ops->create ? ops->create(AxSymbolString(name), registry) : nullptr;
}

bool AxReaderWriterFactory::copyReaderWriter(AxReaderWriter const* source, AxReaderWriter* destination) const
{
    return source && destination && copyByType(*destination, *source);
}

bool AxReaderWriterFactory::compareReaderWriter(AxReaderWriter const* a, AxReaderWriter const* b) const
{
    return a == b || (a && b && equalByType(*a, *b));
}

AxTypeInfo const& AxReaderWriterFactory::typeInfo(AxReaderWriter const& rw)
{
    return TypeTable::instance().find(rw);
}

bool AxReaderWriterFactory::copyByType(AxReaderWriter& to, AxReaderWriter const& from)
{
    if (&to == &from)
    {
        return true;
    }
    AxTypeOps const* const ops = typeInfo(from).ops;
    bool const areAlike = ops ? !ops->isForEachClass || typeid(to) == typeid(from)
                              : std::strcmp(to.readerWriterType(), from.readerWriterType()) == 0;
    if (ops != typeInfo(to).ops || !areAlike)
    {
        return false;
    }
    if (ops)
    {
        ops->copy(to, from);
    }
    else
    {
        to.assign(from);
    }
    return true;
}

bool AxReaderWriterFactory::equalByType(AxReaderWriter const& a, AxReaderWriter const& b)
{
    AxTypeOps const* const ops = typeInfo(a).ops;
    if (functionsOf(a) != functionsOf(b) &&
        (std::strcmp(a.readerWriterType(), b.readerWriterType()) != 0 || ops != typeInfo(b).ops))
    {
        return false;
    }
    if (ops)
    {
        return ops->equal(a, b);
    }
    return typeid(a) == typeid(b) && a == b && ownText(a) == ownText(b);
}

AxReaderWriter* AxReaderWriterFactory::cloneReaderWriter(AxString const& type, AxReaderWriter const* rw,
                                                         AxReaderWriterRegistry* registry) const
{
    AxTypeOps const* const ops = rw ? find(type) : nullptr;
    if (!ops || !ops->create)
    {
        return nullptr;
    }
    AxReaderWriter* const made = ops->create(rw->name(), registry);
    copyReaderWriter(rw, made);
    return made;
}

int AxReaderWriterFactory::getSize(AxReaderWriter const* rw) const
{
    return rw ? static_cast<int>(sizeof(std::uint32_t) + rw->writtenText().size()) : 0;
}

char* AxReaderWriterFactory::encode(AxReaderWriter const* rw, char* buffer) const
{
    if (!rw || !buffer)
    {
        return buffer;
    }
    std::string const text = rw->writtenText();
    auto const length = static_cast<std::uint32_t>(text.size());
    std::memcpy(buffer, &length, sizeof length);
    std::memcpy(buffer + sizeof length, text.data(), text.size());
    return buffer + sizeof length + text.size();
}

char const* AxReaderWriterFactory::decode(AxReaderWriter* rw, char const* buffer)
{
    if (!rw || !buffer)
    {
        return buffer;
    }
    std::uint32_t length = 0;
    std::memcpy(&length, buffer, sizeof length);
    buffer += sizeof length;
    rw->readText(std::string_view(buffer, length), AxFilename::nullFilename(), AxReaderWriter::nullFilenames(),
                 AxReaderWriter::nullVariableReference());
    return buffer + length;
}
