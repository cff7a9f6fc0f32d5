#pragma once

#include "AxEnvironment.h"
#include "AxExport.h"
#include "AxFilename.h"
#include "AxObjectType.h"
#include "AxReaderWriter.h"

#include <list>
#include <vector>

class AxRwVariableBindings;
class AxZedObjectParameters;

/// Records and model-set entries in entity files. An element "simObject" holds one object:
///
///     <simObject name="m1">
///       <variableBindings name="variable-bindings"><variable name="top" value="18.5"/></variableBindings>
///       <objectType name="objectType" value="1:1:1:225:1:1:3:0"/>
///       <matchType name="matchType" value="1:1:1:225:1:1:-1:-1"/>
///       <objectTypes name="additional-match-types"><objectType value="1:1:1:225:1:2:-1:-1"/></objectTypes>
///       <platform name="m1" parameter-type="moving-object-param" max-speed="$top"/>
///       <componentSystem name="gun"><systemName name="systemName" value="gun.sys"/></componentSystem>
///       <guiInformation name="gui" label="M1"/>
///     </simObject>
///
/// All but the platform may be missing, in any order; of an element that stands once the first counts. Object elements
/// are found anywhere below the root, the root included, but not inside one another.
///
/// A finding has the place of its node and the file of the innermost AxSourceScope. Nothing throws, but for
/// std::bad_alloc from the parts of an element, model-set entries, variables and `keepOthers`.
class ZEDOBJPARAM_API AxZedXmlUtils
{
public:
    AxZedXmlUtils() = delete;

    /// The tree of an XML file; null when it cannot be read, which is reported if `warn`.
    static AxEnvironmentPtr CreateZedXmlEnvironment(AxFilename const& file, bool warn);
    /// Writes beside the file and renames; false, after a report, when an old file had to stay.
    static bool writeEnvironment(AxEnvironmentPtr const& env, AxFilename const& file);

    /// Appends the object elements in the order of the file.
    static void getObjectElements(AxEnvironmentPtr const& env, std::list<AxEnvValuePtr>& elements);
    /// The last object element of exactly this type; null when there is none.
    static AxEnvValuePtr findObjectElementByObjectType(AxEnvironmentPtr const& env, AxObjectType const& type);
    /// The last object element that has exactly this match type.
    static AxEnvValuePtr findObjectElementByMatchType(AxEnvironmentPtr const& env, AxObjectType const& type);

    // ---- Parts of an object element. A type that cannot be read is reported and null. ----
    static AxObjectType getObjectType(AxEnvironmentPtr const& env, AxEnvValuePtr const& element);
    /// Appends the match type, unless it is null, and then the additional ones.
    static void getMatchTypes(AxEnvironmentPtr const& env, AxEnvValuePtr const& element,
                              std::vector<AxObjectType>& types);
    /// Null when there is none, as the next.
    static AxEnvValuePtr getPlatform(AxEnvironmentPtr const& env, AxEnvValuePtr const& element);
    static AxEnvValuePtr getGuiInformation(AxEnvironmentPtr const& env, AxEnvValuePtr const& element);
    static void getComponentSystems(AxEnvironmentPtr const& env, AxEnvValuePtr const& element,
                                    std::list<AxEnvValuePtr>& systems);
    /// The definition file that a component system names.
    static AxString getSystemName(AxEnvironmentPtr const& env, AxEnvValuePtr const& system);

    // ---- Records ----
    /// A new record from the platform and the systems of an object element, its variables in front of `bindings`. The
    /// record shares the tree, has no object type yet, and is the caller's. Null after a report.
    static AxZedObjectParameters* createParameters(AxEnvironmentPtr const& env, AxEnvValuePtr const& element,
                                                   AxFilenameList const& files, AxBindingsList const& bindings);
    /// Adds an object element for the record below `parent` (null: the root, which it becomes in an empty tree), with
    /// what stood besides in the element that the record was made of. Null when `parent` cannot have children.
    static AxEnvValuePtr addObject(AxEnvironmentPtr const& env, AxEnvValuePtr const& parent,
                                   AxZedObjectParameters const& record);

    /// Keeps with a record that was made of an object element, as an item of its text, what that holds besides: the gui
    /// information, further types, what is unknown. As text the record gives it back to `addObject`. Of the records of
    /// a database, where `isOneOfMany`, further types are entries and the one of the object type keeps the rest, else
    /// the one of the first match type.
    static void keepOthers(AxZedObjectParameters& record, bool isOneOfMany);

    // ---- Model-set entries ----
    /// Reads the gui information of an object element, and its object type into the member "object-type". False when
    /// it has no gui information.
    static bool readModelSetEntry(AxEnvironmentPtr const& env, AxEnvValuePtr const& element, AxReaderWriter& entry);
    /// Makes the gui information of an object element anew from the entry, and its object type when it has none.
    static bool writeModelSetEntry(AxEnvironmentPtr const& env, AxEnvValuePtr const& element,
                                   AxReaderWriter const& entry);

    // ---- Variables ----
    /// Sets the variables of an object element or component system. A variable of type "string" is one text, any other
    /// value is written as in parameter text.
    static void readVariableBindings(AxEnvironmentPtr const& env, AxEnvValuePtr const& element,
                                     AxRwVariableBindings& variables);
    /// Adds the variables to an element; nothing for an empty set.
    static void writeVariableBindings(AxEnvironmentPtr const& env, AxEnvValuePtr const& element,
                                      AxRwVariableBindings const& variables);

    /// A literal text as an attribute, where a leading "$" is a reference: one more is put in front of it, but not of
    /// "$(" and "$$(", which mean the same in both notations.
    static AxString escapeBindings(AxString const& text);
    /// The literal text of an attribute, the inverse; a reference stays as it is.
    static AxString unescapeBindings(AxString const& text);
};
