#pragma once

#include <map>
#include <memory>
#include <string>
#include <vector>

#include "Database.h"
#include "Places.h"
#include "RecordWalk.h"

class AxZedObjectParametersDB;

/// A file with a whole set of records that inherit from each other (.params), as a database: each record is an entry.
class Collection : public Database
{
public:
    /// The database of either kind; null, after findings, when it cannot be loaded. A collection leaves `reader` alone.
    static std::unique_ptr<Database> openAny(std::string const& file,
                                             std::unique_ptr<AxSxpParameterDbReader> reader = {});
    /// Goes through the record of an entry of a database of either kind.
    static RecordWalk walkThrough(Database const& database, AxSxpParameterDbEntry const& entry,
                                  AxZedObjectParameters& record);

    explicit Collection(std::string file);
    ~Collection() override;

    /// A copy of the record in the file, with what it inherits.
    AxZedObjectParameters* getParameters(AxSxpParameterDbEntry* entry) const override;
    /// The record that one of this type inherits from; null when there is none.
    AxZedObjectParameters* parentOf(AxObjectType const& type) const;
    /// From the first expression of the file to the record of exactly this type.
    std::vector<SourceStep> stepsTo(AxObjectType const& type) const;
    /// Where that begins.
    Place placeOf(AxObjectType const& type) const;
    std::string const& collectionFile() const { return myFile; }

private:
    struct Element
    {
        SourceStep step{};
        Place place{};
    };
    bool read();

    std::string myFile;
    std::unique_ptr<AxZedObjectParametersDB> myParameters;
    std::map<AxObjectType, AxZedObjectParameters*> myRecords;
    std::map<AxObjectType, Element> myElements;
};
