#include "Ax1DRegularTableFn.h"
#include "AxNLengthRealVector.h"
#include "AxReaderWriterFactory.h"
#include "AxReaderWriterFileExtensible.h"
#include "AxRemoteConfigurationList.h"
#include "AxRwAppearance.h"
#include "AxRwBoundingGeometryType.h"
#include "AxRwBoundingVolume.h"
#include "AxRwDeadReckonTypes.h"
#include "AxRwForceType.h"
#include "AxRwForces.h"
#include "AxRwFormationType.h"
#include "AxRwIndividualLifeFormStateType.h"
#include "AxRwIndividualLifeFormWeaponStateType.h"
#include "AxRwNLengthStringVector.h"
#include "AxRwObjectTypeList.h"
#include "AxRwProperties.h"
#include "AxRwRangedObjectType.h"
#include "AxRwRealAttributeList.h"
#include "AxRwStringAttributeList.h"
#include "AxRwStringList.h"
#include "AxRwUUID.h"
#include "AxRwVariableBindings.h"
#include "AxSimMunition.h"
#include "AxSoilList.h"
#include "platform/zedutil/Reading.h"

#include <functional>
#include <gtest/gtest.h>
#include <memory>

namespace
{
struct MemberKind
{
    char const* name;
    std::function<std::unique_ptr<AxReaderWriter>()> make;
    char const* text;     // as written
    char const* other;    // another value
    char const* spelling; // read as `text`, not written so; null: none
};

template <class T>
std::unique_ptr<AxReaderWriter> made()
{
    return std::make_unique<T>(AxSymbolString("k"), nullptr);
}

MemberKind const theMemberKinds[] = {
    {"StringList", made<AxRwStringList>, "(k \"a b\" \"$$(c)\" \"\")", "(k \"a b\")", "(k \"a b\" \"$$(c)\" \"\" )"},
    {"NLengthStringVector", made<AxRwNLengthStringVector>, "(k \"all\" \"12\")", "(k)", "(k all 12)"},
    {"NLengthRealVector", made<AxNLengthRealVector>, "(k 1.0 -2.5 inf)", "(k 1.0 -2.5)", "(k 1 -2.5 inf)"},
    {"ObjectTypeList", made<AxRwObjectTypeList>, "(k (1 1 1 225 -1 -1 -1 -1) (1 2 225 1 0 0 0))", "(k)",
     "(k 1:1:1:225:-1:-1:-1:-1 (1 2 225 1 0 0 0))"},
    {"Forces", made<AxRwForces>, "(k 1 3 17)", "(k 1 3)", "(k 3 17 1 3)"},
    {"StringAttributeList", made<AxRwStringAttributeList>, "(k (\"a b\" \"x\") (\"mount\" \"roof\"))",
     "(k (\"a b\" \"x\"))", "(k (mount floor) (mount roof) (\"a b\" x))"},
    {"RealAttributeList", made<AxRwRealAttributeList>, "(k (\"mud\" 0.4) (\"sand\" 0.7))",
     "(k (\"mud\" 0.4) (\"sand\" 0.75))", "(k (sand 0.7) (mud 4e-1))"},
    {"Appearance", made<AxRwAppearance>, "(k 4294967295)", "(k 1)", nullptr},
    {"UUID", made<AxRwUUID>, "(k \"01234567-89ab-cdef-0123-456789abcdef\")",
     "(k \"01234567-89ab-cdef-0123-456789abcdee\")", "(k 01234567-89AB-cdef-0123-456789abcdef)"},
    {"BoundingGeometryType", made<AxRwBoundingGeometryType>, "(k 2)", "(k 3)", "(k 2.0)"},
    {"FormationType", made<AxRwFormationType>, "(k 4)", "(k 5)", nullptr},
    {"ForceType", made<AxRwForceType>, "(k 30)", "(k 2)", nullptr},
    {"DeadReckonTypes", made<AxRwDeadReckonTypes>, "(k 9)", "(k 0)", nullptr},
    {"LifeFormState", made<AxRwIndividualLifeFormStateType>, "(k 15)", "(k 14)", nullptr},
    {"WeaponState", made<AxRwIndividualLifeFormWeaponStateType>, "(k 3)", "(k 2)", nullptr},
    {"BoundingVolume", made<AxRwBoundingVolume>, "(k\n  (min -3.9 -1.8 -2.4)\n  (max 3.9 1.8 0.1))",
     "(k\n  (min -3.9 -1.8 -2.4)\n  (max 3.9 1.8 0.2))", nullptr},
    {"RangedObjectType", made<AxRwRangedObjectType>, "(k\n  (object-type 1 1 2 -1 -1 -1 -1 -1)\n  (range 12000.0))",
     "(k\n  (range 12000.0))", nullptr},
    {"SimMunition", made<AxSimMunition>,
     "(k\n  (munition-type 1 2 2 225 2 13 1 0)\n  (tracer-type 2 2 225 2 13 2 0)\n  (warhead 1000)\n"
     "  (guidance-mode \"laser\")\n  (munition-name \"120mm-heat\"))",
     "(k\n  (munition-type 1 2 2 225 2 13 1 0)\n  (tracer-type 2 2 225 2 13 2 0)\n  (warhead 1000)\n"
     "  (munition-name \"120mm-heat\"))",
     nullptr},
    {"SoilList", made<AxSoilList>,
     "(k\n  (soil-factors\n    (soil-type \"mud\")\n    (max-speed-factor 0.35)\n    (max-acceleration-factor 0.5)\n"
     "    (max-deceleration-factor 0.6))\n  (soil-factors))",
     "(k\n  (soil-factors\n    (soil-type \"mud\"))\n  (soil-factors))", nullptr},
    {"RemoteConfigurationList", made<AxRemoteConfigurationList>,
     "(k\n  (remote-configuration\n    (object-type 1 1 -1 -1 -1 -1 -1 -1)\n"
     "    (system-definitions \"systems/a.sys\")))",
     "(k\n  (remote-configuration\n    (object-type 1 1 -1 -1 -1 -1 -1 -1)))", nullptr},
    {"TableFunction", made<Ax1DRegularTableFn>, "(k\n  (x-min -5.0)\n  (x-step 10.0)\n  (values 2.0 5.0))",
     "(k\n  (x-min -5.0)\n  (x-step 10.0)\n  (values 2.0 5.5))", nullptr},
    {"Properties", made<AxRwProperties>,
     "(k\n  (crew-size AxRwInt 4)\n  (\"call sign\" AxRwString \"Alpha 1\")\n  (exhaust AxRwOffsetVector -3.0 0.9 "
     "-1.2))",
     "(k\n  (crew-size AxRwInt 5)\n  (\"call sign\" AxRwString \"Alpha 1\")\n  (exhaust AxRwOffsetVector -3.0 0.9 "
     "-1.2))",
     nullptr},
    {"VariableBindings", made<AxRwVariableBindings>, "(k\n  (data-root \"$(opd-dir)/data\")\n  (offset 1.0 2.0 3.0))",
     "(k\n  (offset 1.0 2.0 3.0))", "(k (data-root \"$(opd-dir)/data\") (offset 1.0 2.0 3.0))"},
    {"File", made<AxReaderWriterFile>, "(k \"..\\\\hit\\\\m1 $$(a).hit\")", "(k \"\")", nullptr},
    {"FileExtensible", made<AxReaderWriterFileExtensible>, "(k \"systems/gun.sys\")", "(k \"systems/gun\")",
     "(k systems/gun.sys)"},
};

class MemberKinds : public ::testing::TestWithParam<MemberKind>
{
protected:
    std::unique_ptr<AxReaderWriter> read(char const* text) const
    {
        std::unique_ptr<AxReaderWriter> rw = GetParam().make();
        EXPECT_FALSE(rw->valueSpecified());
        EXPECT_TRUE(readFrom(*rw, text));
        return rw;
    }
};
} // namespace

TEST_P(MemberKinds, ReadWhatTheyWrite)
{
    ReportedFindings findings;
    std::unique_ptr<AxReaderWriter> const rw = read(GetParam().text);
    EXPECT_TRUE(rw->valueSpecified());
    EXPECT_EQ(rw->writtenText(), std::string(GetParam().text) + '\n');
    if (GetParam().spelling)
    {
        std::unique_ptr<AxReaderWriter> const other = read(GetParam().spelling);
        EXPECT_EQ(other->writtenText(), rw->writtenText());
        EXPECT_TRUE(AxReaderWriterFactory::equalByType(*rw, *other));
    }
    EXPECT_EQ(findings.codes(), "");
}

TEST_P(MemberKinds, CopyAndCompareTheWholeValue)
{
    std::unique_ptr<AxReaderWriter> const rw = read(GetParam().text);
    std::unique_ptr<AxReaderWriter> const other = read(GetParam().other);
    std::unique_ptr<AxReaderWriter> const copy = GetParam().make();
    EXPECT_FALSE(AxReaderWriterFactory::equalByType(*rw, *other));
    ASSERT_TRUE(AxReaderWriterFactory::copyByType(*copy, *other));
    ASSERT_TRUE(AxReaderWriterFactory::copyByType(*copy, *rw));
    EXPECT_TRUE(AxReaderWriterFactory::equalByType(*rw, *copy));
    EXPECT_TRUE(copy->valueSpecified());
    EXPECT_EQ(copy->writtenText(), rw->writtenText());
}

TEST_P(MemberKinds, GoBackToTheBeginningOnReset)
{
    std::unique_ptr<AxReaderWriter> const fresh = GetParam().make();
    std::unique_ptr<AxReaderWriter> const rw = read(GetParam().text);
    rw->reset();
    EXPECT_FALSE(rw->valueSpecified());
    EXPECT_EQ(rw->writtenText(true), fresh->writtenText(true));
    EXPECT_TRUE(AxReaderWriterFactory::equalByType(*rw, *fresh));
}

INSTANTIATE_TEST_SUITE_P(All, MemberKinds, ::testing::ValuesIn(theMemberKinds),
                         [](auto const& param) { return std::string(param.param.name); });

TEST(AxRwSequence, KeepsItsValuesWhenOneOfTheNewIsOfAnotherKind)
{
    struct Case
    {
        std::unique_ptr<AxReaderWriter> rw;
        char const* good;
        char const* bad;
        char const* found;
    };
    Case const cases[] = {
        {made<AxNLengthRealVector>(), "(k 1.0)", "(k 2.0 x)", "wrong-kind@1:8"},
        {made<AxRwStringList>(), "(k \"a\")", "(k b (c))", "wrong-kind@1:6"},
        {made<AxRwObjectTypeList>(), "(k (1 1 1 1 1 1 1))", "(k (1 2 3))", "wrong-kind@1:4"},
        {made<AxRwForces>(), "(k 1)", "(k 1.5)", "wrong-kind@1:4"},
        {made<AxRwRealAttributeList>(), "(k (\"a\" 1.0))", "(k (\"a\" 2.0) (\"b\" 1.0 2.0))", "wrong-kind@1:14"},
        {made<AxRwRealAttributeList>(), "(k (\"a\" 1.0))", "(k ((a) 2.0))", "wrong-kind@1:4"},
        {made<AxRwRealAttributeList>(), "(k (\"a\" 1.0))", "(k (\"a\" x))", "wrong-kind@1:4"},
        {made<AxRwRealAttributeList>(), "(k (\"a\" 1.0))", "(k (\"a\"))", "wrong-kind@1:4"},
        {made<AxRwStringAttributeList>(), "(k (\"a\" \"b\"))", "(k \"a\")", "wrong-kind@1:4"},
    };
    for (Case const& one : cases)
    {
        ReportedFindings findings;
        readFrom(*one.rw, one.good);
        readFrom(*one.rw, one.bad);
        EXPECT_EQ(findings.codes(), one.found);
        EXPECT_EQ(one.rw->writtenText(), std::string(one.good) + '\n');
    }
}

TEST(AxRwSequence, MarksItselfSpecifiedWhenEditedButNotWhenAssigned)
{
    AxRwNLengthStringVector words("words", nullptr);
    words = std::vector<AxString>{"a"};
    EXPECT_FALSE(words.valueSpecified());
    words.add("b");
    EXPECT_TRUE(words.valueSpecified());
    EXPECT_TRUE(words.contains("b"));
    EXPECT_TRUE(words.remove("a"));
    EXPECT_FALSE(words.remove("a"));
    EXPECT_EQ(words[0], "b");
    EXPECT_EQ(words.size(), 1U);
}

TEST(AxRwSequence, ValuesAreComparedOneByOneAndNoNumberEqualsItself)
{
    struct
    {
        std::unique_ptr<AxReaderWriter> one;
        std::unique_ptr<AxReaderWriter> other;
        char const* left;
        char const* right;
        bool areEqual;
    } const cases[] = {
        {made<AxNLengthRealVector>(), made<AxNLengthRealVector>(), "(k 1.0 nan)", "(k 1.0 nan)", true},
        {made<AxNLengthRealVector>(), made<AxNLengthRealVector>(), "(k nan 1.0)", "(k 1.0 nan)", false},
        {made<AxNLengthRealVector>(), made<AxNLengthRealVector>(), "(k 1.0)", "(k nan)", false},
        {made<AxNLengthRealVector>(), made<AxNLengthRealVector>(), "(k 1.0)", "(k 1.0 2.0)", false},
        {made<AxRwRealAttributeList>(), made<AxRwRealAttributeList>(), "(k (a nan))", "(k (a nan))", true},
        {made<AxRwRealAttributeList>(), made<AxRwRealAttributeList>(), "(k (a 1.0))", "(k (b 1.0))", false},
        {made<AxRwRealAttributeList>(), made<AxRwRealAttributeList>(), "(k (a 1.0))", "(k (a 1.0) (b 1.0))", false},
        {made<AxRwStringAttributeList>(), made<AxRwStringAttributeList>(), "(k (a x))", "(k (a y))", false},
    };
    for (auto const& [one, other, left, right, areEqual] : cases)
    {
        readFrom(*one, left);
        readFrom(*other, right);
        EXPECT_EQ(AxReaderWriterFactory::equalByType(*one, *other), areEqual) << left << ' ' << right;
    }
}

TEST(AxRwSequence, GoesBackToItsDefaultOnReset)
{
    AxRwRealAttributeList factors("factors", nullptr);
    AxNLengthRealVector values("values", nullptr);
    auto* const usualFactors = new AxRwRealAttributeList("factors", nullptr);
    auto* const usualValues = new AxNLengthRealVector("values", nullptr);
    readFrom(*usualFactors, "(factors (mud 0.4))");
    readFrom(*usualValues, "(values 1.0 2.0)");
    factors.setDefaultRWValue(usualFactors);
    values.setDefaultRWValue(usualValues);
    EXPECT_FALSE(factors.remove("sand"));
    readFrom(factors, "(factors (sand 0.7))");
    readFrom(values, "(values 3.0)");
    factors.reset();
    values.reset();
    EXPECT_EQ(factors.get("mud"), 0.4);
    EXPECT_FALSE(factors.contains("sand"));
    EXPECT_EQ(values.values(), (std::vector<double>{1.0, 2.0}));
}

TEST(AxRwSequence, ExpandsReferencesInTextsAndKeepsThemForWriting)
{
    AxRwStringList list("files", nullptr);
    AxRwVariableBindings bindings;
    bindings.setString("dir", "here");
    readFrom(list, "(files \"$(dir)/a\" \"b\" \"$$(dir)\")", {&bindings});
    EXPECT_EQ(list.value(), (std::list<AxString>{"here/a", "b", "$(dir)"}));
    EXPECT_EQ(list.writtenText(), "(files \"$(dir)/a\" \"b\" \"$$(dir)\")\n");
    list.add("c");
    EXPECT_EQ(list.writtenText(), "(files \"here/a\" \"b\" \"$$(dir)\" \"c\")\n");
}

TEST(AxRwSequence, TakesAVariableForAllOfItsValues)
{
    AxNLengthRealVector values("values", nullptr);
    AxRwVariableBindings bindings;
    readFrom(bindings, "(variable-bindings (v 1.0 2.0))");
    readFrom(values, "(values $v)", {&bindings});
    EXPECT_EQ(values.values(), (std::vector<double>{1.0, 2.0}));
    EXPECT_EQ(values.writtenText(), "(values $v)\n");
}

TEST(AxRwObjectTypeList, AcceptsEverythingWhenEmptyElseWhatFitsAPattern)
{
    AxRwObjectTypeList types("types", nullptr);
    AxObjectType const tank(1, 1, 225, 1, 1, 3, 0, 1);
    EXPECT_TRUE(types.accepts(tank));
    types.add(AxObjectType(1, 2, -1, -1, -1, -1, -1, 1));
    EXPECT_FALSE(types.accepts(tank));
    types.add(AxObjectType(1, 1, -1, -1, -1, -1, -1, 1));
    EXPECT_TRUE(types.accepts(tank));
    EXPECT_FALSE(types.contains(tank));
}

TEST(AxRwForces, KeepsASet)
{
    AxRwForces forces("forces", nullptr);
    forces = std::vector<AxForceType>{AxForceNeutral, AxForceFriendly, AxForceNeutral};
    forces.add(AxForceOpposing);
    EXPECT_EQ(forces.value(), (std::vector<AxForceType>{AxForceFriendly, AxForceOpposing, AxForceNeutral}));
}

TEST(AxRwAttributeList, AnswersTheFallbackForUnknownNames)
{
    AxRwRealAttributeList factors("factors", nullptr);
    factors.set("mud", 0.4);
    EXPECT_TRUE(factors.valueSpecified());
    EXPECT_EQ(factors.get("mud", 1.0), 0.4);
    EXPECT_EQ(factors.get("sand", 1.0), 1.0);
    EXPECT_TRUE(factors.remove("mud"));
    EXPECT_TRUE(factors.attributes().empty());
}

TEST(AxRwBoundingVolume, IsSpecifiedByEitherCornerAndNotWrittenOtherwise)
{
    AxRwBoundingVolume volume("volume", nullptr);
    std::string out;
    volume.writeSelf(out, 0, true, AxFilename::nullFilename());
    EXPECT_EQ(out, "");
    readFrom(volume, "(volume)");
    EXPECT_FALSE(volume.valueSpecified());
    readFrom(volume, "(volume (max -1.0 2.0 3.0))");
    EXPECT_TRUE(volume.valueSpecified());
    EXPECT_EQ(volume.volume().min(), AxVector64(-1.0, 0.0, 0.0));
    EXPECT_EQ(volume.volume().max(), AxVector64(0.0, 2.0, 3.0));
    volume.setValueSpecified(false, false);
    EXPECT_FALSE(volume.valueSpecified());
    volume.setVolume(Ax3dBoundingVolume(AxVector64(1, 1, 1), AxVector64(2, 2, 2)));
    EXPECT_EQ(volume.writtenText(), "(volume\n  (min 1.0 1.0 1.0)\n  (max 2.0 2.0 2.0))\n");
}

TEST(AxRwUUID, TakesTextsAndMakesNewOnes)
{
    ReportedFindings findings;
    AxRwUUID id("id", nullptr);
    EXPECT_TRUE(id.isNull());
    id = AxString("01234567-89AB-cdef-0123-456789abcdef");
    EXPECT_EQ(id.string(), "01234567-89ab-cdef-0123-456789abcdef");
    id = AxString("01234567");
    EXPECT_TRUE(id.isNull());
    EXPECT_EQ(findings.codes(), "bad-identifier@0:0");
    id.generate();
    AxRwUUID other("id", nullptr);
    other.generate();
    EXPECT_FALSE(id == other);
    EXPECT_TRUE(id.valueSpecified());
}

TEST(AxRwAppearance, CarriesTheEntityTypeThatTellsHowToReadIt)
{
    AxRwAppearance const vehicle(AxSymbolString("appearance"), AxEntityType(1, 1, 0, 0, 0, 0, 0), nullptr);
    AxRwAppearance copy("appearance", nullptr);
    EXPECT_EQ(vehicle.value(), 0U);
    EXPECT_TRUE(copy.entityType().isNull());
    copy = vehicle;
    EXPECT_EQ(copy.entityType(), AxEntityType(1, 1, 0, 0, 0, 0, 0));
}

TEST(Ax1DRegularTableFn, IsLinearBetweenSamplesAndConstantOutside)
{
    Ax1DRegularTableFn fn("fn", nullptr);
    EXPECT_EQ(fn.evaluate(3.0), 0.0);
    readFrom(fn, "(fn (x-min 10.0) (x-step 5.0) (values 2.0 4.0 3.0))");
    struct
    {
        double x, y;
    } const cases[] = {{-100, 2}, {10, 2}, {12.5, 3}, {15, 4}, {17.5, 3.5}, {20, 3}, {1e300, 3}};
    for (auto const& one : cases)
    {
        EXPECT_EQ(fn.evaluate(one.x), one.y) << one.x;
    }
    ReportedFindings findings;
    fn.setXStep(0.0);
    EXPECT_EQ(fn.evaluate(12.0), 0.0);
    EXPECT_EQ(findings.codes(), "bad-step@0:0");
}

TEST(AxSoilList, FindsTheFactorsOfASoil)
{
    AxSoilList soils("soils", nullptr);
    AxSoilFactors mud;
    mud.setSoilType("mud");
    mud.setMaxSpeedFactor(0.5);
    soils.add(mud);
    ASSERT_TRUE(soils.lookupSoil("mud"));
    EXPECT_EQ(soils.lookupSoil("mud")->maxSpeedFactor(), 0.5);
    EXPECT_EQ(soils.lookupSoil("mud")->maxDecelerationFactor(), 1.0);
    EXPECT_FALSE(soils.lookupSoil("sand"));
    EXPECT_EQ(soils.factors("sand").maxSpeedFactor(), 1.0);
    readFrom(soils, "(soils (soil-factors (soil-type mud) (max-speed-factor 0.5)) (soil-factors (soil-type default)"
                    " (max-speed-factor 0.8)))");
    EXPECT_EQ(soils.factors("mud").maxSpeedFactor(), 0.5);
    EXPECT_EQ(soils.factors("sand").maxSpeedFactor(), 0.8);
}

TEST(AxRemoteConfigurationList, AppendsCopiesThatShareTheVariables)
{
    std::unique_ptr<AxRemoteConfigurationList> const list(
        AxRemoteConfigurationList::create("remote-configurations", nullptr));
    AxRemoteConfiguration configuration;
    configuration.setVariableBindings(boost::shared_ptr<AxRwVariableBindings>(new AxRwVariableBindings));
    list->add(configuration);
    *list += *list;
    ASSERT_EQ(list->count(), 2);
    AxRemoteConfiguration const& last = *static_cast<AxRemoteConfiguration const*>(AxRwList::element(list->last()));
    EXPECT_EQ(last.variableBindings(), configuration.variableBindings());
}
