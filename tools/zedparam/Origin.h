#pragma once

#include <map>
#include <set>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "Places.h"
#include "RecordWalk.h"

class AxSxpParameterDbEntry;
class Database;
class JsonWriter;

/// Where an effective value comes from.
struct Origin
{
    enum class Kind
    {
        Default,   ///< nothing gives it; the place is that of a declaration that tells the default, if there is one
        Given,     ///< it stands at the place
        Inherited, ///< from the record that stands at the place
        Variable   ///< a reference stands at the place
    };
    /// A variable on the way to the value.
    struct Binding
    {
        std::string variable;
        std::string member; ///< of the component system that sets it; empty for a variable of a file
        Place place{};      ///< of its value; without a file when nothing binds it
    };
    Kind kind = Kind::Default;
    Place place{};
    std::string parent{};            ///< the name of the record that it is inherited from
    std::vector<Binding> bindings{}; ///< each names the next

    /// Where the value itself stands, behind the variables.
    Place const& valuePlace() const;
    std::string text() const;
    /// The members "origin", its place and the others, into an object that was begun.
    void write(JsonWriter& json) const;
};

/// Tells the origins of the values of one record.
class Origins
{
public:
    Origins(Database const& database, AxSxpParameterDbEntry const& entry, AxZedObjectParameters& record);

    Origin of(RecordWalk const& at);

private:
    Origin ofDefault(RecordWalk const& at);
    void noteDeclared(std::span<SourceStep const> toSystem);
    Origin ofInherited(RecordWalk const& at);
    void bind(std::string variable, RecordWalk const& at, Origin& origin);
    AxlObj const* cellOf(std::string const& variable, Place& place);
    bool bindToSystem(std::string const& variable, RecordWalk const& at, Origin& origin);

    Database const& myDatabase;
    AxSxpParameterDbEntry const& myEntry;
    AxZedObjectParameters& myRecord;
    Places myPlaces;
    std::map<std::pair<AxReaderWriter const*, std::string>, Place> myDeclared; ///< parameters of systems by their names
    std::set<AxReaderWriter const*> myListsOfSystems;                          ///< whose parameters those are
};
