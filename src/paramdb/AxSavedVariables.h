#pragma once

#include "AxFilename.h"
#include "AxRwVariableBindings.h"

#include <map>
#include <string>

class AxSxpParameterDb;
class AxSxpParameterDbEntry;

/// The variables of a database file that is being saved. Those of all loaded files stand in one set, the first of a
/// name. What was read with a variable that the new file does not bind, or binds to something else, keeps its meaning:
/// a record takes the variable along, any other text has it written out.
class AxSavedVariables
{
public:
    /// Adds to `all`, the set of the new file; what that binds already stays.
    AxSavedVariables(AxSxpParameterDb const& db, AxRwVariableBindings& all);

    /// Whether the new file does without "data-root", although a loaded file binds it.
    bool isDataRootLeftOut() const { return myIsDataRootLeftOut; }
    /// Gives the record of the entry those variables that it, or a file that it names, would miss. False when there are
    /// none.
    bool takeAlong(AxSxpParameterDbEntry const& entry);
    /// Writes out in `rw`, which was read with the variables of `read`, references that would be missed.
    void writeOut(AxReaderWriter& rw, AxRwVariableBindings const& read) const;

private:
    /// Those of `read` that the new file does not bind alike.
    AxRwVariableBindings missedOf(AxRwVariableBindings const& read) const;
    std::string const& textOf(AxFilename const& file);

    AxRwVariableBindings& myAll;
    std::map<AxRwVariableBindings const*, AxRwVariableBindings> myMissed;
    std::map<std::string, std::string> myTexts; // of the files that records name
    bool myIsDataRootLeftOut = false;
};
