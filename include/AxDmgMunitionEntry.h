#pragma once

#include "AxDmgSurfaceTable.h"
#include "AxReaderWriterFile.h"
#include "AxSimMunition.h"

/// What one kind of munition, or every kind that fits a pattern, does to a target: damage by a direct hit and by one
/// nearby, each in a file of its own, and how it suppresses those whom it does not damage.
///
/// What an insult counts is the engine's business; the library stores it.
class ZEDOBJPARAM_API AxDmgMunitionEntry : public AxRecordOf<AxDmgMunitionEntry, "AxDmgMunitionEntry">
{
public:
    AxDmgMunitionEntry();
    AxDmgMunitionEntry(AxSymbolString name, AxReaderWriterRegistry* registry);
    AxDmgMunitionEntry(AxDmgMunitionEntry const& other, AxReaderWriterRegistry* registry = nullptr);
    ~AxDmgMunitionEntry() override;
    AxDmgMunitionEntry& operator=(AxDmgMunitionEntry const& other);

    AxSimMunition const& munition() const { return myMunition; }
    void setMunition(AxSimMunition const& munition);
    AxFilename const& directDamageFilename() const { return myDirectDamageFile.filename(); }
    /// Nothing is loaded.
    void setDirectDamageFilename(AxFilename const& file) { assignSpecified(myDirectDamageFile, file); }
    AxFilename const& collateralDamageFilename() const { return myCollateralDamageFile.filename(); }
    /// Nothing is loaded.
    void setCollateralDamageFilename(AxFilename const& file) { assignSpecified(myCollateralDamageFile, file); }
    double suppressionDetonationInsult() const { return myDetonationInsult.value(); }
    void setSuppressionDetonationInsult(double insult) { assignSpecified(myDetonationInsult, insult); }
    double suppressionDetonationRange() const { return myDetonationRange.value(); }
    void setSuppressionDetonationRange(double range) { assignSpecified(myDetonationRange, range); }
    double suppressionLofInsult() const { return myLofInsult.value(); }
    void setSuppressionLofInsult(double insult) { assignSpecified(myLofInsult, insult); }
    double suppressionLofRange() const { return myLofRange.value(); }
    void setSuppressionLofRange(double range) { assignSpecified(myLofRange, range); }

    /// What the files hold.
    AxDmgSurfaceTable& directDamage() { return myDirectDamage; }
    AxDmgSurfaceTable const& directDamage() const { return myDirectDamage; }
    AxDmgSurfaceTable& collateralDamage() { return myCollateralDamage; }
    AxDmgSurfaceTable const& collateralDamage() const { return myCollateralDamage; }

    /// As the table of direct or else of collateral damage answers.
    bool getProbabilities(AxString const& surface, double angle, double range, AxPrbRangeTableEntry* out,
                          bool direct) const;
    /// The larger of the two tables' radii, metres.
    double getMaximumDamageRadius() const;
    /// The larger of the two suppression ranges, metres.
    double getMaximumSuppressionRadius() const;

    /// What the entries of a table are called in text.
    static AxSymbolString elementWord();

private:
    AxSimMunition myMunition{{"ammo", "", "The munition, or a pattern."}, registry()};
    AxReaderWriterFile myDirectDamageFile{{"direct-damage-file", "", "Damage to what is hit, by surface."}, registry()};
    AxDmgSurfaceTable myDirectDamage{"damage-table", nullptr};
    AxReaderWriterFile myCollateralDamageFile{{"collateral-damage-file", "", "Damage to what is near, by surface."},
                                              registry()};
    AxDmgSurfaceTable myCollateralDamage{"damage-table", nullptr};
    AxRwReal myDetonationInsult{
        {"suppression-detonation-insult", "", "Insult of a detonation, in the engine's measure."}, registry()};
    AxRwReal myDetonationRange{
        {"suppression-detonation-range", "m", "How far a detonation suppresses.", {0.0, axUnbounded}}, registry()};
    AxRwReal myLofInsult{{"suppression-lof-insult", "", "Insult of a round that passes, in the engine's measure."},
                         registry()};
    AxRwReal myLofRange{
        {"suppression-lof-range", "m", "How far from its line of fire a round suppresses.", {0.0, axUnbounded}},
        registry()};
};
