#include "Origin.h"

#include <utility>

#include "AxComponentSystemDescriptor.h"
#include "AxSystemParameterData.h"
#include "AxZedObjectParameters.h"
#include "Collection.h"
#include "Json.h"
#include "PathText.h"
#include "ShownPath.h"

namespace
{
constexpr std::size_t theLongestChain = 32;

/// How the walk reached its first steps, as a path.
KeywordPath pathOf(std::span<SourceStep const> steps, std::string const& rest)
{
    std::string text;
    for (SourceStep const& step : steps)
    {
        text.append(step.keyword.isNull() ? "*" : stepOf(step.keyword.view())).append("/");
    }
    KeywordPath path;
    std::string fault;
    KeywordPath::parse(text + rest, path, fault);
    return path;
}

/// How many steps lead to the innermost component system around the value; 0 when there is none.
std::size_t stepsToSystem(RecordWalk const& at)
{
    std::size_t count = at.steps().size() - 1;
    while (count > 0 && dynamic_cast<AxComponentSystemDescriptor const*>(at.steps()[count - 1].rw) == nullptr)
    {
        --count;
    }
    return count;
}
} // namespace

Place const& Origin::valuePlace() const
{
    return bindings.empty() || bindings.back().place.file.empty() ? place : bindings.back().place;
}

std::string Origin::text() const
{
    switch (kind)
    {
    case Kind::Given:
        return place.text();
    case Kind::Inherited:
        return "inherited from " + parent + ", " + place.text();
    case Kind::Default:
        return place.file.empty() ? "default" : "default, " + place.text();
    case Kind::Variable:
        break;
    }
    std::string text = place.text();
    for (Binding const& binding : bindings)
    {
        text += ", $" + binding.variable;
        text += binding.member.empty() ? "" : " set by " + binding.member;
        text += binding.place.file.empty() ? " is not bound" : " at " + binding.place.text();
    }
    return text;
}

void Origin::write(JsonWriter& json) const
{
    constexpr char const* theKinds[] = {"default", "file", "inherited", "variable"};
    json.member("origin", theKinds[static_cast<int>(kind)]);
    if (!place.file.empty())
    {
        place.write(json);
    }
    if (!parent.empty())
    {
        json.member("from", parent);
    }
    if (kind == Kind::Variable)
    {
        json.key("bindings").beginArray();
        for (Binding const& binding : bindings)
        {
            json.beginObject().member("variable", binding.variable);
            if (!binding.member.empty())
            {
                json.member("set-by", binding.member);
            }
            if (!binding.place.file.empty())
            {
                binding.place.write(json);
            }
            json.endObject();
        }
        json.endArray();
    }
}

Origins::Origins(Database const& database, AxSxpParameterDbEntry const& entry, AxZedObjectParameters& record)
    : myDatabase(database), myEntry(entry), myRecord(record)
{
}

Origin Origins::of(RecordWalk const& at)
{
    AxReaderWriter const& rw = at.rw();
    if (at.ownItem() == nullptr && rw.inherited())
    {
        return ofInherited(at);
    }
    Origin origin;
    if (at.ownItem() == nullptr && rw.isVariableReference())
    {
        origin.kind = Origin::Kind::Variable;
        origin.place = myPlaces.of(at);
        bind(rw.variableName().string().string(), at, origin);
    }
    else if (at.ownItem() != nullptr || rw.valueSpecified())
    {
        origin.place = myPlaces.of(at);
        origin.kind = Origin::Kind::Given;
    }
    bool const isUnknown = origin.kind != Origin::Kind::Default && !myPlaces.hasRead(at);
    if (origin.place.line == 0 && !isUnknown) // also some defaults count as given, so that they are written
    {
        origin = ofDefault(at);
    }
    return origin;
}

Origin Origins::ofInherited(RecordWalk const& at)
{
    Origin origin;
    origin.kind = Origin::Kind::Inherited;
    auto const* collection = dynamic_cast<Collection const*>(&myDatabase);
    KeywordPath const path = pathOf(at.steps().first(at.steps().size() - 1), stepOf(at.keyword().view()));
    AxObjectType type = myEntry.objectType();
    bool isFound = false;
    while (collection != nullptr && !isFound)
    {
        AxZedObjectParameters* const parent = collection->parentOf(type);
        if (parent == nullptr)
        {
            break;
        }
        type = parent->objectType();
        origin.parent = parent->name().string().string();
        RecordWalk walk(collection->collectionFile(), *parent, collection->stepsTo(type));
        walk.run(path,
                 [&](RecordWalk const& given)
                 {
                     isFound = !given.rw().inherited();
                     origin.place = myPlaces.of(given);
                 });
    }
    return origin;
}

Origin Origins::ofDefault(RecordWalk const& at)
{
    // A component system's definition declares its parameters with their defaults.
    Origin origin;
    std::size_t const system = stepsToSystem(at);
    if (system == 0 || system + 1 != at.steps().size())
    {
        return origin;
    }
    noteDeclared(at.steps().first(system));
    auto const declared = myDeclared.find({at.steps()[system - 1].rw, at.keyword().string().string()});
    origin.place = declared != myDeclared.end() ? declared->second : Place();
    return origin;
}

/// Notes what the definitions of a system and of those beside it declare.
void Origins::noteDeclared(std::span<SourceStep const> toSystem)
{
    std::span<SourceStep const> const toList = toSystem.first(toSystem.size() - 1);
    if (!myListsOfSystems.insert(toList.empty() ? nullptr : toList.back().rw).second)
    {
        return;
    }
    RecordWalk walk = Collection::walkThrough(myDatabase, myEntry, myRecord);
    walk.run(pathOf(toList, "*/system-definition/meta-data/parameter-data-list/*/default-value"),
             [&](RecordWalk const& declared)
             {
                 std::span<SourceStep const> const steps = declared.steps();
                 auto const* data = dynamic_cast<AxSystemParameterData const*>(steps[steps.size() - 2].rw);
                 if (data != nullptr)
                 {
                     AxReaderWriter const* const system = steps[toList.size()].rw;
                     myDeclared[{system, data->parameterName().string()}] = myPlaces.of(declared);
                 }
             });
}

AxlObj const* Origins::cellOf(std::string const& variable, Place& place)
{
    SourceStep const steps[] = {{AxSymbolString("variable-bindings"), &myRecord},
                                {AxSymbolString(std::string_view(variable)), &myRecord}};
    if (AxEnvValuePtr const& element = myRecord.objectNode())
    {
        if (AxEnvValue const* const node = myPlaces.element(element).variable(variable))
        {
            place = {Database::fileOf(myEntry), node->line(), node->column()};
            return AxlObj::nilCell();
        }
    }
    else
    {
        RecordWalk const walk = Collection::walkThrough(myDatabase, myEntry, myRecord);
        std::vector<SourceStep> inRecord(walk.stepsToRecord().begin(), walk.stepsToRecord().end());
        inRecord.insert(inRecord.end(), std::begin(steps), std::end(steps));
        if (AxlObj const* const cell = myPlaces.valueIn(walk.files().front(), inRecord))
        {
            place = Places::at(walk.files().front(), cell);
            return cell;
        }
        if (!myPlaces.hasRead(walk.files().front()))
        {
            place.file = shownPath(walk.files().front());
            return nullptr;
        }
    }
    if (myDatabase.file().empty()) // a collection of records binds nothing
    {
        return nullptr;
    }
    AxlObj const* const cell = myPlaces.valueIn(myDatabase.file(), steps);
    if (cell != nullptr)
    {
        place = Places::at(myDatabase.file(), cell);
    }
    else if (!myPlaces.hasRead(myDatabase.file()))
    {
        place.file = shownPath(myDatabase.file());
    }
    return cell;
}

void Origins::bind(std::string variable, RecordWalk const& at, Origin& origin)
{
    while (origin.bindings.size() < theLongestChain)
    {
        Place place;
        AxlObj const* const cell = cellOf(variable, place);
        if (cell == nullptr)
        {
            if (variable == "opd-dir")
            {
                place.file = shownPath(myDatabase.file());
            }
            if (!place.file.empty() || !bindToSystem(variable, at, origin))
            {
                origin.bindings.push_back({variable, "", place});
            }
            return;
        }
        origin.bindings.push_back({variable, "", place});
        if (!cell->isReference())
        {
            return;
        }
        variable = cell->text().substr(1);
    }
}

bool Origins::bindToSystem(std::string const& variable, RecordWalk const& at, Origin& origin)
{
    std::size_t const system = stepsToSystem(at);
    bool isFound = false;
    RecordWalk walk = Collection::walkThrough(myDatabase, myEntry, myRecord);
    if (system == 0 || system + 1 == at.steps().size())
    {
        return false;
    }
    walk.run(pathOf(at.steps().first(system), stepOf(variable)),
             [&](RecordWalk const& member)
             {
                 Origin const its = of(member);
                 origin.bindings.push_back({variable, member.path(), its.place});
                 origin.bindings.insert(origin.bindings.end(), its.bindings.begin(), its.bindings.end());
                 isFound = true;
             });
    return isFound;
}
