#pragma once

#include "AxReaderWriter.h"
#include "AxZedParameterDbEntry.h"

#include <boost/shared_ptr.hpp>
#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <cstdio>
#include <memory>
#include <vector>

class AxSxpParameterDbFileEntry;
class AxlInputStream;
struct AxDiagnostic;

/// An entry that knows the file of its record and reads it when the record is first asked for.
class ZEDOBJPARAM_API AxSxpParameterDbEntry : public AxZedParameterDbEntry
{
public:
    AxSxpParameterDbEntry();
    /// One that stands at this place of a database file, its name at that place among the names of its origin.
    struct NamePlace
    {
        unsigned begin;
        unsigned length;
    };
    AxSxpParameterDbEntry(AxObjectType const& type, NamePlace name, unsigned line, unsigned column);
    ~AxSxpParameterDbEntry() override;

    /// Reads the record from `filename()`.
    AxZedObjectParameters* load() override;
    /// The file name.
    AxString uniqueIdentifier() const override;

    // ---- The order of the virtual operations is part of the interface. ----
    virtual void setFilename(AxFilename const& file);
    virtual AxFilename const& filename() const;
    /// Reads the record and holds it. A record that is held already stays the same object and takes the values read.
    /// Null, one warning, and the held record untouched when there is none to be had.
    virtual AxZedObjectParameters* loadFromFile(AxFilename const& file);
    /// A new record from the open file of parameter text, which stays the caller's; null after a warning.
    virtual AxZedObjectParameters* readParameterEntry(std::FILE* stream, AxEnvironmentPtr const& env,
                                                      AxEnvValuePtr* value);
    /// A new record from the expression `(name (parameter-type "type") item...)`; null after a warning.
    virtual AxZedObjectParameters* loadParameters(AxlObjPtr const& object, AxEnvironmentPtr const& env,
                                                  AxEnvValuePtr* value);
    /// The directory that the file name is relative to besides the search paths.
    virtual void setPath(AxFilename const& path);
    virtual AxFilename const& path() const;
    virtual void setVersion(int version);
    virtual void setVariableBindings(boost::shared_ptr<AxRwVariableBindings> const& bindings);
    virtual boost::shared_ptr<AxRwVariableBindings> variableBindings() const;
    /// Searched first, in order.
    virtual std::vector<AxFilename> const& searchPaths() const;
    virtual void setSearchPaths(std::vector<AxFilename> const& paths);
    // ---- End of the virtual operations. ----

    /// Version of the database file that the entry was loaded from; 101 for one that was not.
    int version() const;
    /// The directory of that file, null for an entry that was not loaded from one.
    AxFilename const& databaseDirectory() const;
    void setDatabaseDirectory(AxFilename const& directory);
    /// Where the entry stands in that file, for what is wrong with the file that it names.
    void setPlace(boost::shared_ptr<AxFilename const> const& databaseFile, unsigned line, unsigned column);
    /// From 1; 0 for an entry that stands in none.
    unsigned line() const { return myLine; }
    unsigned column() const { return myColumn; }
    /// Whether the entry stands for an object in a file below the data root, and not in the database file.
    bool isFromDataRoot() const;
    /// Where the record's file is found now: along the search paths, the path, the database's directory, as named.
    /// Null when it is nowhere.
    AxFilename foundFilename() const;
    /// The entry as it stood in the database file, when it holds more than type and plain file name: variables in the
    /// name, items that were not understood. Null for others.
    AxSxpParameterDbFileEntry const* fileEntry() const { return myFileEntry.get(); }
    void setFileEntry(AxSxpParameterDbFileEntry const& entry);

    /// Version, path, search paths, variables, directory and name of the database file: entries of one file share them
    /// until one is given others.
    struct Origin;
    using OriginPtr = boost::intrusive_ptr<Origin>;
    OriginPtr const& origin() const { return myOrigin; }
    void setOrigin(OriginPtr const& origin);

private:
    struct Sources;
    struct Reading;

    static OriginPtr const& noOrigin();
    /// That of this entry alone.
    template <class Change>
    void changeOrigin(Change const& change);
    AxZedObjectParameters* readRecord(AxlInputStream& stream, AxEnvironmentPtr const& env, AxEnvValuePtr* value);
    std::vector<AxFilename> directories() const;
    using FilePtr = std::unique_ptr<std::FILE, int (*)(std::FILE*)>;
    /// Opens the file that is read now; null after a warning.
    FilePtr openFile(AxFilename const& file, std::vector<AxFilename> const& searched);
    AxZedObjectParameters* readTextFile(AxFilename const& file);
    AxZedObjectParameters* readEntityFile(AxFilename const& file);
    AxZedObjectParameters* hold(AxZedObjectParameters* record);
    /// What is wrong with the file that the entry names, at the place of the entry.
    AxDiagnostic faultOfFile(char const* code, AxFilename const& file, std::string const& text) const;

    /// Takes the name from its place.
    void takeName() const;

    mutable AxFilename myFilename;
    mutable NamePlace myName{}; // until it is asked for; most never are
    OriginPtr myOrigin;
    unsigned myLine = 0;
    unsigned myColumn = 0;
    Reading* myReading = nullptr; // while the record is read
    std::unique_ptr<AxSxpParameterDbFileEntry> myFileEntry;
};
