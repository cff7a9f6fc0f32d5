#pragma once

#include "AxReaderWriter.h"
#include "AxSystemDefinitionInfo.h"

#include <list>

/// Component system definitions in the order in which they were loaded. Owns them; what a look-up answers is valid
/// until it is removed or the database ends. Of two definitions that fit, the first answers.
class ZEDOBJPARAM_API AxComponentSystemDatabase
{
public:
    AxComponentSystemDatabase();
    AxComponentSystemDatabase(AxComponentSystemDatabase const&) = delete;
    AxComponentSystemDatabase& operator=(AxComponentSystemDatabase const&) = delete;

    // ---- The order of the virtual operations is part of the interface. ----
    virtual ~AxComponentSystemDatabase();
    /// Reads the file into a new definition, relative names being searched beside it. A file that cannot be opened
    /// enters an empty definition and counts as loaded; false, and nothing entered, for one that is no readable stream.
    virtual bool loadSystemDefinition(AxFilename const& file, AxBindingsList const& bindings);
    /// All that are of the category and allowed for the state repository type; a null text admits any.
    virtual std::list<AxSystemDefinitionInfo> findSystemsForCategoryAndSRType(AxString const& category,
                                                                              AxString const& srType) const;
    /// By the exact file name under which it was loaded; null when there is none.
    virtual AxComponentSystemDefinition const* findSystemByFilename(AxFilename const& file) const;
    /// By the file name without its directory; null when there is none.
    virtual AxComponentSystemDefinition const* findSystemBySystemName(AxFilename const& file) const;
    /// Removes the file's definition, if any, and loads the file.
    virtual bool replaceSystem(AxFilename const& file, AxBindingsList const& bindings);
    /// Deletes the definition; false when it is not here.
    virtual bool removeSystem(AxComponentSystemDefinition const* definition);
    virtual bool removeSystem(AxFilename const& file);
    // ---- End of the virtual operations. ----

private:
    std::list<AxSystemDefinitionInfo> mySystems;
};
