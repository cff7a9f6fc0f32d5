#include "Collection.h"

#include <algorithm>
#include <utility>

#include "AxFilename.h"
#include "AxZedObjectParameters.h"
#include "AxZedObjectParametersDB.h"
#include "AxZedObjectParametersList.h"
#include "Factories.h"

namespace
{
constexpr char const* theListWord = "sim-object-parameters";

int superTypeOf(std::string_view family)
{
    constexpr std::pair<std::string_view, int> theFamilies[] = {{"individual-entity-parameters", 1},
                                                                {"pseudo-aggregate-entity-parameters", 3},
                                                                {"true-aggregate-entity-parameters", 4}};
    auto const* const found = std::ranges::find(theFamilies, family, &std::pair<std::string_view, int>::first);
    return found != std::end(theFamilies) ? found->second : 0;
}

/// The type that a record's text gives; the null type when it gives none.
AxObjectType typeIn(AxlObj const& record)
{
    AxObjectType type;
    for (AxlObj const* rest = record.cdr(); rest->isPair(); rest = rest->cdr())
    {
        AxlObj const& item = *rest->car();
        if (item.car()->text() == "object-type")
        {
            std::string text;
            for (AxlObj const* field = item.cdr(); field->isPair(); field = field->cdr())
            {
                text.append(text.empty() ? "" : ":").append(field->car()->pname().string());
            }
            AxObjectType::fromString(text, type);
        }
    }
    if (type.superType() == 0)
    {
        type.setSuperType(superTypeOf(record.car()->text()));
    }
    return type;
}
} // namespace

std::unique_ptr<Database> Collection::openAny(std::string const& file, std::unique_ptr<AxSxpParameterDbReader> reader)
{
    if (!(AxFilename(file).extension() == "params"))
    {
        return open(file, std::move(reader));
    }
    installedFactories();
    auto collection = std::make_unique<Collection>(file);
    return collection->init() && collection->read() ? std::move(collection) : nullptr;
}

RecordWalk Collection::walkThrough(Database const& database, AxSxpParameterDbEntry const& entry,
                                   AxZedObjectParameters& record)
{
    auto const* collection = dynamic_cast<Collection const*>(&database);
    return {foundFile(entry), record,
            collection != nullptr ? collection->stepsTo(entry.objectType()) : std::vector<SourceStep>()};
}

Collection::Collection(std::string file)
    : myFile(std::move(file)), myParameters(std::make_unique<AxZedObjectParametersDB>("parameter-list", nullptr))
{
}

Collection::~Collection() = default;

bool Collection::read()
{
    Source const source(myFile);
    if (!source.expression().isPair() || !myParameters->init() || !myParameters->readParameterFile(myFile.c_str()))
    {
        std::fprintf(stderr, "zedparam: %s is no collection of records\n", myFile.c_str());
        return false;
    }
    AxRwList const& list = *myParameters->parametersList();
    for (AxListItem const* item = list.first(); item != nullptr; item = item->next())
    {
        auto* record = static_cast<AxZedObjectParameters*>(AxRwList::element(item));
        myRecords[record->objectType()] = record;
        add(record->objectType(), AxFilename(myFile), false, nullptr);
    }
    for (AxlObj const* rest = source.expression().cdr(); rest->isPair(); rest = rest->cdr())
    {
        std::map<AxSymbolString, int> occurrences;
        bool const isList = rest->car()->car()->text() == theListWord;
        for (AxlObj const* left = isList ? rest->car()->cdr() : AxlObj::nilCell(); left->isPair(); left = left->cdr())
        {
            AxlObj const& record = *left->car();
            AxSymbolString const family = record.car()->symbol();
            SourceStep const step{family, myParameters.get(), occurrences[family]++};
            myElements[typeIn(record)] = {step, Places::at(myFile, &record)};
        }
    }
    return true;
}

AxZedObjectParameters* Collection::getParameters(AxSxpParameterDbEntry* entry) const
{
    auto const record = myRecords.find(entry->objectType());
    if (entry->parameters() == nullptr && record != myRecords.end())
    {
        entry->setParameters(record->second->clone(record->second->AxReaderWriter::name(), nullptr));
    }
    return entry->parameters();
}

AxZedObjectParameters* Collection::parentOf(AxObjectType const& type) const
{
    AxZedObjectParameters* parent = nullptr;
    for (auto other = myRecords.begin(); other != myRecords.end() && other->first < type; ++other)
    {
        bool const isCatchAll = other->first.superType() == AxObjectType::theCatchAllSuperType;
        parent = isCatchAll || type.matchPattern(other->first) ? other->second : parent;
    }
    return parent;
}

std::vector<SourceStep> Collection::stepsTo(AxObjectType const& type) const
{
    auto const element = myElements.find(type);
    return element == myElements.end()
               ? std::vector<SourceStep>()
               : std::vector<SourceStep>{{AxSymbolString(theListWord), myParameters.get()}, element->second.step};
}

Place Collection::placeOf(AxObjectType const& type) const
{
    auto const element = myElements.find(type);
    return element != myElements.end() ? element->second.place : Place{};
}
