#include "RecordFixture.h"

#include "AxAggregateObjectParameters.h"
#include "AxBombParameters.h"
#include "AxCulturalFeatureParameters.h"
#include "AxFixedWingEntityParameters.h"
#include "AxGlobalEnvironmentParameters.h"
#include "AxHumanParameters.h"
#include "AxIndividualLifeFormParameters.h"
#include "AxMissileParameters.h"
#include "AxPhysicalWorldParams.h"
#include "AxRotaryWingEntityParameters.h"
#include "AxSubSurfaceEntityParameters.h"
#include "AxTacticalSmokeParameters.h"

#include <regex>

namespace
{
class AxDefaultParameterFactoryTest : public RecordFixture
{
protected:
    AxDefaultParameterFactoryTest()
    {
        AxZedObjectParameters::addParameterCreatorFcn("physical-world-param", &AxPhysicalWorldParams::creator);
    }
};

using Transfer = void (*)(AxZedObjectParameters& to, AxZedObjectParameters const& from);

/// Binds the statement of a transfer to records of one class.
template <class T, auto statement>
constexpr Transfer transfer = [](AxZedObjectParameters& to, AxZedObjectParameters const& from)
{ statement(dynamic_cast<T&>(to), dynamic_cast<T const&>(from)); };

constexpr Transfer noTransfer = [](AxZedObjectParameters&, AxZedObjectParameters const&) {};

struct RecordKind
{
    char const* type;
    char const* specified;  ///< what a new record writes after its type item
    char const* own;        ///< keywords of the class with their defaults
    char const* overridden; ///< inherited keywords whose defaults differ from those of a moving object
    char const* edited;     ///< the same keywords with other values
    Transfer transfer;      ///< hands each value over by its accessors
};

// clang-format off
RecordKind const theRecordKinds[] = {
    {"zed-object-param", "(bounding-geometry-type 2)", "", "", "", noTransfer},
    {"moving-object-param", "(bounding-geometry-type 2) (is-organized true)", "", "", "", noTransfer},
    {"ground-vehicle-param", "(bounding-geometry-type 2) (is-organized true) (dr-algorithm 4)", "(soil-list)",
     "(dr-algorithm 4)", "(soil-list (soil-factors (soil-type \"mud\") (max-speed-factor 0.35)))",
     transfer<AxGroundVehicleParameters, [](auto& to, auto& from) { to.setSoilList(from.soilList()); }>},
    {"cultural-feature-param", "(bounding-geometry-type 2) (is-organized false)", "(gravity-aligned true)", "",
     "(gravity-aligned false)",
     transfer<AxCulturalFeatureParameters, [](auto& to, auto& from) { to.setGravityAligned(from.gravityAligned()); }>},
    {"fixed-wing-entity-param", "(bounding-geometry-type 2) (is-organized true)",
     "(min-speed 100.0) (max-altitude 12000.0) (max-climb-rate 150.0) (max-yaw-rate 0.7853981633974483) "
     "(max-pitch-rate 0.7853981633974483) (max-roll-rate 1.0471975511965976) (flaps-deceleration 10.0) "
     "(ordered-ground-speed 10.0) (max-ground-speed 200.0) (max-ground-stopping-deceleration 4.5) "
     "(ground-turning-radius 5.0) (max-ground-slope 1.0) (on-ground-tolerance 10.0) (on-ground false)",
     "(dr-algorithm 4) (other-support 2.5 0.0 2.0) (max-speed 300.0) (turning-radius 20.0) (ordered-speed 150.0) "
     "(max-deceleration 20.0) (fuel-efficiency 1000.0) (left-support 0.5 -1.0 0.0) (max-acceleration 4.5)",
     "(min-speed 1.0) (max-altitude 2.0) (max-climb-rate 3.0) (max-yaw-rate 4.0) (max-pitch-rate 5.0) "
     "(max-roll-rate 6.0) (flaps-deceleration 7.0) (ordered-ground-speed 8.0) (max-ground-speed 9.0) "
     "(max-ground-stopping-deceleration 10.5) (ground-turning-radius 11.0) (max-ground-slope 12.0) "
     "(on-ground-tolerance 13.0) (on-ground true)",
     transfer<AxFixedWingEntityParameters, [](auto& to, auto& from) {
         to.setMinSpeed(from.minSpeed());
         to.setMaxAltitude(from.maxAltitude());
         to.setMaxClimbRate(from.maxClimbRate());
         to.setMaxYawRate(from.maxYawRate());
         to.setMaxPitchRate(from.maxPitchRate());
         to.setMaxRollRate(from.maxRollRate());
         to.setFlapsDeceleration(from.flapsDeceleration());
         to.setOrderedGroundSpeed(from.orderedGroundSpeed());
         to.setMaxGroundSpeed(from.maxGroundSpeed());
         to.setMaxGroundStoppingDeceleration(from.maxGroundStoppingDeceleration());
         to.setGroundTurningRadius(from.groundTurningRadius());
         to.setMaxGroundSlope(from.maxGroundSlope());
         to.setOnGroundTolerance(from.onGroundTolerance());
         to.setOnGround(from.onGround());
     }>},
    {"rotary-wing-entity-param", "(bounding-geometry-type 2) (is-organized true)",
     "(max-altitude 12000.0) (joystick-control false) (terrain-check true) (max-climb-rate 50.0) "
     "(max-yaw-rate 0.7853981633974483) (max-pitch-rate 0.7853981633974483) (max-roll-rate 1.0471975511965976) "
     "(max-yaw-acceleration 0.1768) (max-pitch-acceleration 0.1768) (max-roll-acceleration 0.1768) "
     "(zero-collective-lift-acceleration -10.0) (full-collective-lift-acceleration 30.0)",
     "(dr-algorithm 4) (other-support -0.2 0.0 0.0) (max-speed 300.0) (turning-radius 20.0) (ordered-speed 150.0) "
     "(max-deceleration 20.0) (fuel-efficiency 1000.0)",
     "(max-altitude 1.0) (joystick-control true) (terrain-check false) (max-climb-rate 2.0) (max-yaw-rate 3.0) "
     "(max-pitch-rate 4.0) (max-roll-rate 5.0) (max-yaw-acceleration 6.0) (max-pitch-acceleration 7.0) "
     "(max-roll-acceleration 8.0) (zero-collective-lift-acceleration 9.0) (full-collective-lift-acceleration 10.0)",
     transfer<AxRotaryWingEntityParameters, [](auto& to, auto& from) {
         to.setMaxAltitude(from.maxAltitude());
         to.setJoystickControl(from.joystickControl());
         to.setTerrainCheck(from.terrainCheck());
         to.setMaxClimbRate(from.maxClimbRate());
         to.setMaxYawRate(from.maxYawRate());
         to.setMaxPitchRate(from.maxPitchRate());
         to.setMaxRollRate(from.maxRollRate());
         to.setMaxYawAcceleration(from.maxYawAcceleration());
         to.setMaxPitchAcceleration(from.maxPitchAcceleration());
         to.setMaxRollAcceleration(from.maxRollAcceleration());
         to.setZeroCollectiveLiftAcceleration(from.zeroCollectiveLiftAcceleration());
         to.setFullCollectiveLiftAcceleration(from.fullCollectiveLiftAcceleration());
     }>},
    {"missile-param", "(bounding-geometry-type 2) (is-organized true)",
     "(range 5000.0) (max-maneuver-gs 20.0) (fire-and-forget false) (cep-radius 0.0) (transition-angle 0.1745) "
     "(proportional-navigation-gain 4.0) (range-name \"\")",
     "(dr-algorithm 2)",
     "(range 1.0) (max-maneuver-gs 2.0) (fire-and-forget true) (cep-radius 3.0) (transition-angle 0.4) "
     "(proportional-navigation-gain 5.0) (range-name \"long\")",
     transfer<AxMissileParameters, [](auto& to, auto& from) {
         to.setRange(from.range());
         to.setMaxManeuverGs(from.maxManeuverGs());
         to.setFireAndForget(from.fireAndForget());
         to.setCepRadius(from.cepRadius());
         to.setTransitionAngle(from.transitionAngle());
         to.setProportionalNavigationGain(from.proportionalNavigationGain());
         to.setRangeName(from.rangeName());
     }>},
    {"bomb-param", "(bounding-geometry-type 2) (is-organized true)",
     "(max-range 28000.0) (max-range-altitude 15240.0) (cep-radius 13.0)", "",
     "(max-range 1.0) (max-range-altitude 2.0) (cep-radius 3.0)",
     transfer<AxBombParameters, [](auto& to, auto& from) {
         to.setMaxRange(from.maxRange());
         to.setMaxRangeAltitude(from.maxRangeAltitude());
         to.setCepRadius(from.cepRadius());
     }>},
    {"surface-entity-param", "(bounding-geometry-type 2) (is-organized true)", "",
     "(dr-algorithm 4) (left-support 20.0 -5.0 0.0) (right-support 20.0 5.0 0.0) (other-support -20.0 0.0 0.0) "
     "(max-speed 15.0) (max-reverse-speed 4.0) (turning-radius 250.0) (ordered-speed 8.0) (max-acceleration 0.3) "
     "(max-deceleration 0.3) (max-lateral-acceleration 0.5)",
     "", noTransfer},
    {"individual-lifeform-param", "(bounding-geometry-type 2) (is-organized true) (dr-algorithm 4)",
     "(soil-list) (initial-posture 1) (initial-weapon-state 2)", "",
     "(initial-posture 4) (initial-weapon-state 3)",
     transfer<AxIndividualLifeFormParameters, [](auto& to, auto& from) {
         to.setInitialPosture(from.initialPosture());
         to.setInitialWeaponState(from.initialWeaponState());
     }>},
    {"human-param",
     "(bounding-geometry-type 2) (bounding-volume (min -0.2 -0.2 -0.91) (max 0.2 0.2 0.91)) (is-organized true) "
     "(dr-algorithm 2) (dr-thresholds (translation 0.25)) (can-pivot true) (max-pivot-speed 2.5) "
     "(left-support 0.1 -0.1 0.91) (right-support 0.1 0.1 0.91) (other-support -0.1 0.0 0.91) (max-speed 4.5) "
     "(max-reverse-speed 1.0) (turning-radius 0.1) (ordered-speed 1.5) (max-acceleration 3.5) (max-deceleration 4.0) "
     "(fuel-efficiency 1000.0) (initial-posture 1) (initial-weapon-state 2)",
     "(initial-posture 1) (initial-weapon-state 2)", "", "(initial-posture 4) (initial-weapon-state 3)",
     transfer<AxHumanParameters, [](auto& to, auto& from) {
         to.setInitialPosture(from.initialPosture());
         to.setInitialWeaponState(from.initialWeaponState());
     }>},
    {"aggregate-object-param", "(bounding-geometry-type 2) (is-organized true)", "(can-have-subordinates true)", "",
     "(can-have-subordinates false)",
     transfer<AxAggregateObjectParameters,
              [](auto& to, auto& from) { to.setCanHaveSubordinates(from.canHaveSubordinates()); }>},
    {"tactical-smoke-param", "(bounding-geometry-type 2)", "(dr-density-threshold 1.0) (dr-sigma-threshold 1.0)",
     "(dr-algorithm 2)", "(dr-density-threshold 2.0) (dr-sigma-threshold 3.0)",
     transfer<AxTacticalSmokeParameters, [](auto& to, auto& from) {
         to.setDrDensityThreshold(from.drDensityThreshold());
         to.setDrSigmaThreshold(from.drSigmaThreshold());
     }>},
    {"global-environment-param", "(bounding-geometry-type 2)",
     "(send-repository-update-when-time-changed-by-seconds 60.0)", "",
     "(send-repository-update-when-time-changed-by-seconds 1.0)",
     transfer<AxGlobalEnvironmentParameters, [](auto& to, auto& from) {
         to.setSendRepositoryUpdateWhenTimeChangedBySeconds(from.sendRepositoryUpdateWhenTimeChangedBySeconds());
     }>},
    {"subsurface-entity-param", "(bounding-geometry-type 2) (is-organized true)", "(max-depth 300.0)",
     "(max-speed 15.0) (turning-radius 250.0)", "(max-depth 1.0)",
     transfer<AxSubSurfaceEntityParameters, [](auto& to, auto& from) { to.setMaxDepth(from.maxDepth()); }>},
    {"physical-world-param", "(bounding-geometry-type 2)",
     "(gravity 9.80665) (air-density 1.225) (air-temperature 288.15) (speed-of-sound-in-air 340.294) "
     "(water-density 1025.0) (speed-of-sound-in-water 1500.0)",
     "",
     "(gravity 1.0) (air-density 2.0) (air-temperature 3.0) (speed-of-sound-in-air 4.0) (water-density 5.0) "
     "(speed-of-sound-in-water 6.0)",
     transfer<AxPhysicalWorldParams, [](auto& to, auto& from) {
         to.setGravity(from.gravity());
         to.setAirDensity(from.airDensity());
         to.setAirTemperature(from.airTemperature());
         to.setSpeedOfSoundInAir(from.speedOfSoundInAir());
         to.setWaterDensity(from.waterDensity());
         to.setSpeedOfSoundInWater(from.speedOfSoundInWater());
     }>},
};
// clang-format on

/// The text of a record on one line, without its name and type item.
std::string itemsOf(AxZedObjectParameters& record, bool all = false)
{
    std::string const line = std::regex_replace(record.writtenText(all), std::regex("\\s+"), " ");
    std::size_t const begin = line.find(") ") + 2;
    return line.substr(begin, line.size() - begin - 2);
}

/// Items at the outermost level of a line.
std::vector<std::string> split(std::string_view line)
{
    std::vector<std::string> items;
    int depth = 0;
    for (char const c : line)
    {
        depth += c == '(' ? 1 : 0;
        if (depth == 1 && c == '(')
        {
            items.emplace_back();
        }
        if (depth > 0)
        {
            items.back() += c;
        }
        depth -= c == ')' ? 1 : 0;
    }
    return items;
}
} // namespace

TEST_F(AxDefaultParameterFactoryTest, ListsTheBuiltInNamesInTheirOrder)
{
    std::string names;
    for (AxString const& name : AxDefaultParameterFactory().typeNames())
    {
        names += name.string() + ' ';
    }
    EXPECT_EQ(names, "zed-object-param moving-object-param ground-vehicle-param cultural-feature-param "
                     "fixed-wing-entity-param rotary-wing-entity-param missile-param bomb-param surface-entity-param "
                     "individual-lifeform-param human-param aggregate-object-param tactical-smoke-param "
                     "global-environment-param subsurface-entity-param zed-base-object-param "
                     "scripted-movement-object-param point-object-param symbol-object-param line-object-param "
                     "area-object-param circle-object-param text-object-param ");
}

TEST_F(AxDefaultParameterFactoryTest, NewRecordsHoldTheDefaultsOfTheirKind)
{
    for (RecordKind const& kind : theRecordKinds)
    {
        RecordPtr const record = made(kind.type);
        ASSERT_TRUE(record) << kind.type;
        EXPECT_EQ(record->type(), kind.type);
        EXPECT_STREQ(record->readerWriterType(), kind.type);
        EXPECT_EQ(itemsOf(*record), kind.specified) << kind.type;
        std::string const all = itemsOf(*record, true);
        EXPECT_NE(all.find(kind.own), std::string::npos) << kind.type << ": " << all;
        for (std::string const& item : split(kind.overridden))
        {
            EXPECT_NE(all.find(item), std::string::npos) << kind.type << ": " << item;
        }
    }
}

TEST_F(AxDefaultParameterFactoryTest, AccessorsReachTheirKeywords)
{
    for (RecordKind const& kind : theRecordKinds)
    {
        RecordPtr const read = made(kind.type);
        readFrom(*read, std::string("(r (parameter-type \"") + kind.type + "\") " + kind.edited + ')');
        RecordPtr const set = made(kind.type);
        kind.transfer(*set, *read);
        std::string const text = itemsOf(*set);
        EXPECT_EQ(text, itemsOf(*read)) << kind.type;
        EXPECT_NE(text.find(kind.edited), std::string::npos) << kind.type << ": " << text;
        EXPECT_EQ(warnings.text(), "");
    }
}

TEST_F(AxDefaultParameterFactoryTest, EditedRecordsSurviveTextAndCloning)
{
    for (RecordKind const& kind : theRecordKinds)
    {
        RecordPtr const record = created(std::string("(r (parameter-type \"") + kind.type + "\") " + kind.edited + ')');
        ASSERT_TRUE(record) << kind.type;
        RecordPtr const clone(record->clone("r", nullptr));
        RecordPtr const read = created(record->writtenText());
        for (RecordPtr const* other : {&clone, &read})
        {
            AxZedObjectParameters& second = **other;
            EXPECT_EQ(second.type(), kind.type);
            EXPECT_TRUE(second == *record) << kind.type;
            EXPECT_EQ(second.writtenText(true), record->writtenText(true)) << kind.type;
        }
        RecordPtr const fresh = created(std::string("(r (parameter-type \"") + kind.type + "\"))");
        EXPECT_EQ(*fresh == *record, std::string_view(kind.edited).empty()) << kind.type;
    }
}

TEST_F(AxDefaultParameterFactoryTest, InheritsWhatOthersSpecifiedAndKeepsItsOwnDefaults)
{
    RecordPtr const general = created("(g (parameter-type \"moving-object-param\") (mass 7.0))");
    for (RecordKind const& kind : theRecordKinds)
    {
        RecordPtr const record = made(kind.type);
        RecordPtr const fresh = made(kind.type);
        fresh->setMass(7.0);
        if (!dynamic_cast<AxMovingObjectParameters*>(fresh.get()))
        {
            fresh->setOrganized(true); // moving objects specify it
        }
        record->inheritValues(general.get());
        EXPECT_TRUE(*record == *fresh) << kind.type;
        EXPECT_EQ(itemsOf(*record), kind.specified) << "inherited values are not written";

        RecordPtr const twin = created(std::string("(t (parameter-type \"") + kind.type + "\") " + kind.edited + ')');
        RecordPtr const heir = created(std::string("(h (parameter-type \"") + kind.type + "\"))");
        heir->inheritValuesFromThisType(twin.get());
        bool const isAllSpecified = std::string_view(kind.type) == "human-param";
        EXPECT_EQ(*heir == *twin, !isAllSpecified) << kind.type << ": specified values are never inherited";
    }
}

TEST(AxFixedWingEntityParameters, AliasesNameTheSupports)
{
    for (bool byCells : {false, true})
    {
        AxFixedWingEntityParameters record("f", nullptr);
        std::string_view const text = "(f (nose-support 1.0 0.0 2.0) (left-wing-support 0.0 -3.0 1.0)"
                                      " (right-wing-support 0.0 3.0 1.0))";
        byCells ? readCellsInto(record, text) : static_cast<void>(readFrom(record, text));
        EXPECT_EQ(record.otherSupport(), AxVector64(1.0, 0.0, 2.0));
        EXPECT_EQ(itemsOf(record), "(bounding-geometry-type 2) (is-organized true) (left-support 0.0 -3.0 1.0) "
                                   "(right-support 0.0 3.0 1.0) (other-support 1.0 0.0 2.0)");
        RecordPtr const clone(record.clone("c", nullptr));
        readFrom(*clone, "(c (nose-support 4.0 5.0 6.0))");
        EXPECT_EQ(dynamic_cast<AxMovingObjectParameters&>(*clone).otherSupport(), AxVector64(4.0, 5.0, 6.0));
    }
}

TEST(AxRotaryWingEntityParameters, NoseSupportIsTheOtherSupport)
{
    AxRotaryWingEntityParameters record("h", nullptr);
    readFrom(record, "(h (nose-support 1.0 2.0 3.0))");
    EXPECT_EQ(record.otherSupport(), AxVector64(1.0, 2.0, 3.0));
}

TEST(AxGroundVehicleParameters, RearSupportIsTheOtherSupportOfLifeFormsToo)
{
    AxIndividualLifeFormParameters record("p", nullptr);
    readFrom(record, "(p (rear-support 1.0 2.0 3.0) (soil-list (soil-factors (soil-type \"mud\"))))");
    EXPECT_EQ(record.otherSupport(), AxVector64(1.0, 2.0, 3.0));
    EXPECT_NE(record.soilList().lookupSoil("mud"), nullptr);
}

TEST(AxRotaryWingEntityParameters, SetDefaultsGoesBackToThem)
{
    AxRotaryWingEntityParameters record("h", nullptr);
    std::string const before = record.writtenText(true);
    record.setMaxSpeed(1.0);
    record.setMaxClimbRate(1.0);
    record.setDeadReckoningAlgorithm(AxDeadReckonStatic);
    record.setDefaults();
    EXPECT_EQ(record.writtenText(true), before);
    EXPECT_EQ(itemsOf(record), "(bounding-geometry-type 2) (is-organized true)");
}

TEST(AxHumanParameters, StandsInItsBoundingVolume)
{
    AxHumanParameters const record("p", nullptr);
    ASSERT_NE(record.boundingVolume(), nullptr);
    EXPECT_DOUBLE_EQ(record.boundingVolume()->height(), 1.82);
    EXPECT_DOUBLE_EQ(record.draft(), record.leftSupport().z());
    EXPECT_EQ(record.deadReckoningThresholds().translationThreshold(), 0.25);
    EXPECT_EQ(record.deadReckoningThresholds().rotationThreshold(), 3.0);
}

TEST(AxSurfaceEntityParameters, DraftIsTheDepthOfTheKeel)
{
    AxSubSurfaceEntityParameters record("s", nullptr);
    EXPECT_EQ(record.draft(), 0.0);
    readFrom(record, "(s (bounding-volume (min -40.0 -6.0 -15.0) (max 40.0 6.0 5.5)))");
    EXPECT_DOUBLE_EQ(record.draft(), 5.5);
}
