#pragma once

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "AxEnvironment.h"
#include "AxSxpParameterDbWriter.h"

class AxZedObjectParameters;
class Database;

/// Gives a record the object type and the match type of the element that it was made of.
void takeTypesOfElement(AxZedObjectParameters& record);
/// Puts the record's element in the place of the one that it was made of. False after a report.
bool replaceElement(AxZedObjectParameters const& record);

/// Writes what is specified, as parameter text.
class TextWriter : public AxSxpParameterDbWriter
{
public:
    bool writeParameterFile(AxFilename const& file, AxZedObjectParameters* record) const override;
};

/// Writes entity files, which the new database finds by itself: below a folder with its name, its data root. Files that
/// the database found below its own data root keep their places there, and all that they hold.
class EntityWriter : public TextWriter
{
public:
    EntityWriter(Database const& database, std::filesystem::path const& target);

    /// An entity file below the new data root that would come to life with those written, or be lost; empty when there
    /// is none.
    std::filesystem::path foreignFile() const;

protected:
    AxSxpParameterDbFileData* createParameterDbFileData() override;
    void writeEntry(AxSxpParameterDbFileData* data, AxSxpParameterDbEntry* entry, AxFilename const& parameterDir,
                    AxFilename const& fileDir) override;

private:
    using Entries = std::vector<AxSxpParameterDbEntry*>;

    void planFile(AxSxpParameterDbEntry* entry);
    bool isOwnDataRoot() const;
    /// Whether the database at the target was converted before, so that its entity files may be replaced.
    bool isConvertedBefore() const;
    void copyFile(std::string const& place, Entries const& entries) const;
    bool writeRecord(AxSxpParameterDbEntry const& entry, std::string const& place) const;

    std::filesystem::path myTarget;
    std::filesystem::path myFolder;
    std::filesystem::path myDataRoot; // of the database that is converted; empty when it has none
    std::map<std::string, Entries> myFiles;
    std::map<AxSxpParameterDbEntry const*, std::string> myPlaces;
};
