#pragma once

#include "AxExport.h"
#include "AxFilename.h"

#include <utility>

class AxComponentSystemDefinition;

/// A definition in a component system database, and the file name, as given, under which it was loaded. The database
/// owns the definition.
class ZEDOBJPARAM_API AxSystemDefinitionInfo
{
public:
    AxSystemDefinitionInfo() = default;
    AxSystemDefinitionInfo(AxFilename filename, AxComponentSystemDefinition* definition)
        : myFilename(std::move(filename)), myDefinition(definition)
    {
    }

    AxFilename const& filename() const { return myFilename; }
    AxComponentSystemDefinition* definition() const { return myDefinition; }

private:
    AxFilename myFilename;
    AxComponentSystemDefinition* myDefinition = nullptr;
};
