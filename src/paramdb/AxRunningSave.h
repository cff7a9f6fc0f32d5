#pragma once

#include "AxFileTransaction.h"
#include "AxObjectSurroundings.h"
#include "AxRwVariableBindings.h"
#include "AxSavedFilenames.h"
#include "AxSavedVariables.h"

#include <map>
#include <optional>
#include <set>

class AxSxpParameterDb;
class AxSxpParameterDbEntry;

/// What one save of a database needs from its first to its last step, and what it takes back when it fails.
class AxRunningSave
{
public:
    /// `file` is the database file; one save runs at a time.
    AxRunningSave(AxSxpParameterDb& db, AxFilename const& file);
    AxRunningSave(AxRunningSave const&) = delete;
    AxRunningSave& operator=(AxRunningSave const&) = delete;
    /// Unless it was finished, gives the entries their former file names back, and the database its version.
    ~AxRunningSave();

    /// Null when none runs.
    static AxRunningSave* current();

    AxFileTransaction& files() { return myFiles; }
    AxFileTransaction const& files() const { return myFiles; }
    /// Notes that a file could not be written.
    void noteFailure() { myHasFailed = true; }
    /// Whether, after such a failure, not even the database file can be written; asked of the disk once.
    bool isHopeless(AxFilename const& file);
    /// The absolute directory of the database file.
    AxFilename const& directory() const { return myDirectory; }
    /// "opd-dir" as it will be when the saved file is loaded.
    AxRwVariableBindings const& databaseVariables() const { return myDatabaseVariables; }

    /// Collects the variables of the database into `all`, the set of the new file.
    AxSavedVariables& collectVariables(AxRwVariableBindings& all) { return myVariables.emplace(myDb, all); }
    /// What was collected; null before.
    AxSavedVariables* variables() { return myVariables ? &*myVariables : nullptr; }

    AxSavedFilenames& filenames() { return myFilenames; }
    /// Of the objects of entity files, whose records are written to files of their own.
    AxObjectSurroundings& surroundings() { return mySurroundings; }

    /// Makes the directory of the record files; names of files there that are still in use are not given out.
    void startDirectory(AxFilename const& directory);
    /// A name not given out before, upper and lower case alike: `file`, or with "-2", "-3", ... before its extension.
    AxFilename unusedName(AxFilename const& file);
    /// Gives `entry` another file for as long as the save does not fail.
    void rename(AxSxpParameterDbEntry& entry, AxFilename const& file);
    /// Replaces the files. False, after a report, when that fails.
    bool finish(AxFilename const& file);

private:
    AxSxpParameterDb& myDb;
    int myFormerVersion; // by which records that were not read yet are read
    AxFilename myDirectory;
    AxRwVariableBindings myDatabaseVariables{"opd-variables"};
    std::optional<AxSavedVariables> myVariables;
    AxSavedFilenames myFilenames;
    AxFileTransaction myFiles;
    AxObjectSurroundings mySurroundings;
    std::set<std::string> myNames;
    std::map<std::string, int> myNextCopies; // of a name, the number to try next
    std::map<AxSxpParameterDbEntry*, AxFilename> myFormerNames;
    AxFilename myMadeDirectory;
    bool myHasFailed = false;
    bool myIsProbed = false;
    bool myIsFinished = false;
};
