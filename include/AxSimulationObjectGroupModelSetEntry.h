#pragma once

#include "AxEnvValue.h"
#include "AxModelSetEntry.h"
#include "AxRwInt.h"

#include <memory>
#include <vector>

class AxSimulationObjectAggregateState;
class AxSimulationObjectBaseState;
class AxSimulationObjectEntityState;
class AxSimulationObjectEnvironmentalState;

/// A model-set entry that stands for a saved group of objects, which users create together. The group's own file (.sog)
/// holds the entry and the objects; a model set file holds the entry alone and names that file.
class ZEDOBJPARAM_API AxSimulationObjectGroupModelSetEntry
    : public AxRecordOf<AxSimulationObjectGroupModelSetEntry, "AxSimulationObjectGroupModelSetEntry", AxModelSetEntry>
{
public:
    using AxRecordOf::AxRecordOf;
    ~AxSimulationObjectGroupModelSetEntry() override;
    AxSimulationObjectGroupModelSetEntry& operator=(AxSimulationObjectGroupModelSetEntry const& other);

    AxSimulationObjectGroupModelSetEntry* clone() const override;
    AxSymbolString elementWord() const override { return theElementWord(); }
    static AxSymbolString theElementWord();

    AxFilename filename() const { return AxFilename(myFilename.value()); }
    void setFilename(AxFilename const& file) { assignSpecified(myFilename, file.string()); }
    AxString const& groupDescription() const { return myGroupDescription.value(); }
    void setGroupDescription(AxString const& description) { assignSpecified(myGroupDescription, description); }
    AxString const& additionalInformation() const { return myAdditionalInformation.value(); }
    void setAdditionalInformation(AxString const& text) { assignSpecified(myAdditionalInformation, text); }
    int creationFlags() const { return myCreationFlags; }
    void setCreationFlags(int flags) { assignSpecified(myCreationFlags, flags); }

    // One for each class of states; the group takes a copy.
    void addSimulatonObject(AxSimulationObjectBaseState const& state);
    void addSimulatonObject(AxSimulationObjectEntityState const& state);
    void addSimulatonObject(AxSimulationObjectAggregateState const& state);
    void addSimulatonObject(AxSimulationObjectEnvironmentalState const& state);
    void clearSimulationObjects();
    /// In the order of the file; lent until the objects change.
    std::vector<AxSimulationObjectBaseState*> simulationObjects() const;

    /// Reads entry and objects from a group file, which becomes the file of the group. Elements of unknown states are
    /// reported, kept and written back. False, and nothing changed, after a report for a file that is no group.
    bool load(AxFilename const& file);
    /// Reads the objects alone, anew, from the group's file. A relative name is looked for in the directories of the
    /// text that gave it, then as it stands.
    bool readAllSimulationObject();
    /// Writes entry and objects to the group's file; false, and an old file as it was, after a report.
    bool save();
    /// The same to another file, which becomes that of the group.
    bool save(AxFilename const& file);

    using AxReaderWriter::getSelf;
    void getSelf(AxlObjPtr const& expression, AxFilenameList const& files, AxBindingsList const& bindings) override;
    char const* xmlType() const override { return "simulationObjectGroup"; }
    bool equals(AxSimulationObjectGroupModelSetEntry const& other) const;

private:
    /// A child of the group's element: an object, or what is kept as it was read.
    struct Part
    {
        std::unique_ptr<AxSimulationObjectBaseState> object;
        AxEnvValuePtr other;
    };
    /// The children of the file's root that are no keywords of the entry, and what stands around the root.
    struct Content
    {
        Content();
        Content(Content&&) noexcept;
        Content& operator=(Content&&) noexcept;
        ~Content();
        AxEnvObjectPtr entry; ///< the root's attributes and the children that are keywords
        std::vector<Part> parts;
        std::vector<AxEnvValuePtr> prologue;
        std::vector<AxEnvValuePtr> epilogue;
    };
    bool readContent(AxFilename const& file, Content& content) const;
    /// False for a child that belongs to the entry itself.
    bool readPart(AxEnvironmentPtr const& env, AxEnvValuePtr const& child, Content& content) const;
    bool write(AxFilename const& file);
    void addCopy(AxSimulationObjectBaseState const& state);
    AxFilename foundFile() const;

    AxRwString myFilename{{"filename", "", "File of the group (.sog)."}, registry()};
    AxRwString myGroupDescription{{"group-description", "", "What the group is, for people."}, registry()};
    AxRwString myAdditionalInformation{{"additional-information", "", "Free text."}, registry()};
    AxRwInt myCreationFlags{{"creation-flags", "", "Bits that tell a host how to create the group."}, registry()};
    Content myContent;
    AxFilenameList myDirectories;
};
