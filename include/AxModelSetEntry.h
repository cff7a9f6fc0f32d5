#pragma once

#include "AxRecordOf.h"
#include "AxRwBoolean.h"
#include "AxRwForces.h"
#include "AxRwNLengthStringVector.h"
#include "AxRwObjectType.h"
#include "AxRwString.h"

/// A type of object that users may create: how it is called, where it is offered, who may have it.
///
/// The name of the entry itself is not kept in a model set file, where all entries begin with one word.
class ZEDOBJPARAM_API AxModelSetEntry : public AxRecordOf<AxModelSetEntry, "AxModelSetEntry">
{
public:
    AxModelSetEntry(AxSymbolString name, AxReaderWriterRegistry* registry);
    ~AxModelSetEntry() override;
    AxModelSetEntry& operator=(AxModelSetEntry const& other);

    virtual AxModelSetEntry* clone() const;
    /// The word that begins the entry in a model set file.
    virtual AxSymbolString elementWord() const;

    bool canCreate() const { return myCanCreate; }
    void setCanCreate(bool can) { assignSpecified(myCanCreate, can); }
    bool canAggregate() const { return myCanAggregate; }
    void setCanAggregate(bool can) { assignSpecified(myCanAggregate, can); }
    AxString const& label() const { return myLabel.value(); }
    void setLabel(AxString const& label) { assignSpecified(myLabel, label); }
    AxString const& uniqueId() const { return myUniqueId.value(); }
    void setUniqueId(AxString const& id) { assignSpecified(myUniqueId, id); }
    AxString const& keywords() const { return myKeywords.value(); }
    void setKeywords(AxString const& keywords) { assignSpecified(myKeywords, keywords); }
    AxString const& menuIcon() const { return myMenuIcon.value(); }
    void setMenuIcon(AxString const& icon) { assignSpecified(myMenuIcon, icon); }
    AxString const& defaultOverlayLayer() const { return myDefaultOverlayLayer.value(); }
    void setDefaultOverlayLayer(AxString const& layer) { assignSpecified(myDefaultOverlayLayer, layer); }
    AxObjectType const& objectType() const { return myObjectType.value(); }
    void setObjectType(AxObjectType const& type) { assignSpecified(myObjectType, type); }
    AxRwForces& forceTypes() { return myForceTypes; }
    AxRwForces const& forceTypes() const { return myForceTypes; }
    AxRwNLengthStringVector& onPalettes() { return myOnPalettes; }
    AxRwNLengthStringVector const& onPalettes() const { return myOnPalettes; }
    /// Nothing happens when it is there already.
    void addOnPalette(AxString const& palette);
    void removeOnPalette(AxString const& palette) { myOnPalettes.remove(palette); }
    void setOnlyOnPalette(AxString const& palette);
    AxRwNLengthStringVector& categories() { return myCategories; }
    AxRwNLengthStringVector const& categories() const { return myCategories; }
    AxRwNLengthStringVector& deployableCountries() { return myDeployableCountries; }
    AxRwNLengthStringVector const& deployableCountries() const { return myDeployableCountries; }
    bool includeInBvSpCalcs() const { return myIncludeInBvSpCalcs; }
    void setIncludeInBvSpCalcs(bool include) { assignSpecified(myIncludeInBvSpCalcs, include); }

    /// The platform that an entity file gives the object. No part of the entry's text, nor of equality.
    AxString const& platform() const { return myPlatform; }
    void setPlatform(AxString const& platform) { myPlatform = platform; }

    /// Reads an object element of an entity file: its gui information, object type and platform. False for one without
    /// an object type.
    virtual bool readFromEnvironment(AxEnvironmentPtr const& env, AxEnvValuePtr const& element);
    /// Makes the gui information of an object element anew, and its object type when it has none.
    virtual bool writeToEnvironment(AxEnvironmentPtr const& env, AxEnvValuePtr const& element) const;

    using AxReaderWriter::putSelf;
    void putSelf(std::string& out, int indent, bool all, AxFilename const& file) override;
    void reset() override;
    bool equals(AxModelSetEntry const& other) const { return AxReaderWriter::operator==(other); }

private:
    AxRwBoolean myCanCreate{{"can-create", "", "Whether users may create such objects."}, true, registry()};
    AxRwBoolean myCanAggregate{{"can-aggregate", "", "Whether such objects may be put into a unit."}, registry()};
    AxRwString myLabel{{"label", "", "Name shown to people."}, registry()};
    AxRwString myUniqueId{{"unique-id", "", "What scenarios know the entry by; given when it is added to a set."},
                          registry()};
    AxRwString myKeywords{{"keywords", "", "Words to find the entry by."}, registry()};
    AxRwString myMenuIcon{{"menu-icon", "", "Picture shown in menus."}, registry()};
    AxRwString myDefaultOverlayLayer{{"default-overlay-layer", "", "Map layer that new objects are put on."},
                                     registry()};
    AxRwObjectType myObjectType{{"object-type", "", "Type of the objects, or a pattern of types."}, registry()};
    AxRwForces myForceTypes{{"force-types", "", "Sides that may have such objects."}, registry()};
    AxRwNLengthStringVector myOnPalettes{{"on-palettes", "", "Palettes that offer the entry."}, registry()};
    AxRwNLengthStringVector myCategories{{"categories", "", "Groups that it stands in on each of its palettes."},
                                         registry()};
    AxRwNLengthStringVector myDeployableCountries{{"deployable-countries", "", "Countries that may have such objects."},
                                                  registry()};
    AxRwBoolean myIncludeInBvSpCalcs{
        {"include-in-bv-sp-calcs", "", "Whether bounding volume and speed calculations include the objects."},
        true,
        registry()};
    AxString myPlatform;
};
