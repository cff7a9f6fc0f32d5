#include "AxReaderWriter.h"

#include "AxDiagnostic.h"
#include "AxEnvObject.h"
#include "AxReaderWriterFactory.h"
#include "AxRwBoolean.h"
#include "AxRwInt.h"
#include "AxRwObjectType.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxRwTemplatedListPtr.h"
#include "AxRwVariableBindings.h"
#include "AxRwVector.h"
#include "AxSinkScope.h"
#include "AxlFunctions.h"
#include "Decimals.h"
#include "platform/zedutil/Reading.h"

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <stdexcept>

namespace
{
class Engine : public AxReaderWriter
{
public:
    Engine(AxSymbolString name, AxReaderWriterRegistry* registry) : AxReaderWriter(name, registry) {}
    Engine(AxKeyword const& keyword, AxReaderWriterRegistry* registry) : AxReaderWriter(keyword, registry) {}
    char const* readerWriterType() const override { return "Engine"; }

    AxRwReal power{{"power", "W", "Largest power.", {0.0, axUnbounded}}, 1000.0, registry()};
    AxRwInt cylinders{{"cylinders", "", "Number of cylinders."}, registry()};
};

class Vehicle : public AxReaderWriter
{
public:
    explicit Vehicle(AxSymbolString name = {}, AxReaderWriterRegistry* registry = nullptr)
        : AxReaderWriter(name, registry)
    {
        AxReaderWriter::registry()->setLocalData();
    }
    Vehicle& operator=(Vehicle const& other)
    {
        assign(other);
        return *this;
    }
    char const* readerWriterType() const override { return "Vehicle"; }

    AxRwReal mass{{"mass", "kg", "Mass with fuel and crew."}, 5000.0, registry()};
    AxRwInt seats{{"seats", "", "Places for people."}, registry()};
    AxRwBoolean armed{{"is-armed", "", "Whether it carries a weapon."}, registry()};
    AxRwString label{{"label", "", "Name shown to people."}, "none", registry()};
    AxRwVector offset{{"offset", "m", "Place of the hull."}, AxVector64(0.5, -1.0, 0.0), registry()};
    AxRwObjectType type{{"type", "", "What it is."}, registry()};
    Engine engine{{"engine", "", "Its engine."}, registry()};
    AxRwTemplatedListPtr<Engine, 1> spares{{"spares", "", "Engines carried along."}, registry()};
};
} // namespace

TEST(AxReaderWriter, WritesOnlyWhatIsSpecifiedUnlessAllIsAskedFor)
{
    Vehicle tank("tank");
    EXPECT_EQ(tank.writtenText(), "(tank)\n");
    tank.engine.power = 7.5e5;
    tank.engine.power.setValueSpecified(true, false);
    tank.armed = true;
    EXPECT_FALSE(tank.armed.valueSpecified());
    EXPECT_EQ(tank.writtenText(), "(tank\n  (engine\n    (power 750000.0)))\n");
    EXPECT_EQ(tank.writtenText(true),
              "(tank\n  (mass 5000.0)\n  (seats 0)\n  (is-armed true)\n  (label \"none\")\n  (offset 0.5 -1.0 0.0)\n"
              "  (type 0 0 0 0 0 0 0)\n  (engine\n    (power 750000.0)\n    (cylinders 0))\n  (spares))\n");
}

TEST(AxReaderWriter, ReadsWhatItWrites)
{
    char const* const text =
        "(\"big tank\"\n  (mass 57000.5)\n  (seats 4)\n  (is-armed true)\n  (label \"a \\\"b\\\" $$(c)\")\n"
        "  (offset 1e-07 -0.0 1e+20)\n  (type 1 1 1 225 1 1 3 0)\n  (engine\n    (cylinders 12))\n"
        "  (spares\n    (left\n      (power 1.5))\n    (left)))\n";
    Vehicle tank;
    ASSERT_TRUE(readFrom(tank, text));
    EXPECT_EQ(tank.writtenText(), text);
    EXPECT_EQ(tank.label.value(), "a \"b\" $(c)");
    EXPECT_EQ(tank.spares.count(), 2);
    Vehicle copy("copy");
    copy = tank;
    EXPECT_TRUE(copy == tank);
    EXPECT_EQ(copy.writtenText(), std::string(text).replace(1, 10, "copy"));
    copy.spares.lookup("left")->cylinders = 3;
    EXPECT_FALSE(copy == tank);
}

TEST(AxReaderWriter, ReadsEveryDecimalToTheNearestDouble)
{
    std::mt19937 engine(5);
    Vehicle vehicle;
    for (int round = 0; round < 20000; ++round)
    {
        std::string const text = anyDecimal(engine);
        ASSERT_TRUE(readFrom(vehicle, "(v (mass " + text + "))")) << text;
        ASSERT_EQ(std::bit_cast<std::uint64_t>(vehicle.mass.value()),
                  std::bit_cast<std::uint64_t>(std::strtod(text.c_str(), nullptr)))
            << text;
    }
}

TEST(AxReaderWriter, ReportsEachFaultAtItsPlaceAndReadsItsNeighbours)
{
    struct Case
    {
        char const* text;
        char const* codes;
        double mass;
        char const* written;
    };
    Case const cases[] = {
        {"(v (mass heavy) (seats 2))", "wrong-kind@1:10", 5000.0, "(v\n  (mass heavy)\n  (seats 2))\n"},
        {"(v (mass 1e999) (seats 2))", "number-range@1:10", 5000.0, "(v\n  (mass 1e999)\n  (seats 2))\n"},
        {"(v (mass) (seats 2))", "wrong-kind@1:4", 5000.0, "(v\n  (mass)\n  (seats 2))\n"},
        {"(v (seats 2.5) (mass 1))", "wrong-kind@1:11", 1.0, "(v\n  (mass 1.0)\n  (seats 2.5))\n"},
        {"(v (seats 2)\n (mas 7 (x \"y\")) (mass 1))", "unknown-keyword@2:3", 1.0,
         "(v\n  (mass 1.0)\n  (seats 2)\n  (mas 7 (x \"y\")))\n"},
        {"(v (mass 1) (mass 2))", "repeated-keyword@1:14", 2.0, "(v\n  (mass 2.0))\n"},
        {"(v (mass 1) (mass heavy) (seats 2))", "repeated-keyword@1:14 wrong-kind@1:19", 1.0,
         "(v\n  (mass 1.0)\n  (mass heavy)\n  (seats 2))\n"},
        {"(v (mass heavy) (mass light))", "wrong-kind@1:10 repeated-keyword@1:18 wrong-kind@1:23", 5000.0,
         "(v\n  (mass heavy)\n  (mass light))\n"},
        {"(v (mass 1 2))", "extra-value@1:12", 1.0, "(v\n  (mass 1.0))\n"},
        {"(v stray (mass 1))", "not-an-item@1:4", 1.0, "(v\n  stray\n  (mass 1.0))\n"},
        {"(v (is-armed maybe) (offset 1 2) (type 1 2 3 4 5 6) (mass 3))",
         "wrong-kind@1:14 wrong-kind@1:29 wrong-kind@1:40", 3.0,
         "(v\n  (mass 3.0)\n  (is-armed maybe)\n  (offset 1 2)\n  (type 1 2 3 4 5 6))\n"},
    };
    for (Case const& c : cases)
    {
        ReportedFindings findings;
        Vehicle vehicle;
        EXPECT_TRUE(readFrom(vehicle, c.text)) << c.text;
        EXPECT_EQ(findings.codes(), c.codes) << c.text;
        EXPECT_EQ(vehicle.mass.value(), c.mass) << c.text;
        EXPECT_EQ(vehicle.writtenText(), c.written) << c.text;
        Vehicle copy("v");
        copy = vehicle;
        EXPECT_EQ(copy.writtenText(), c.written) << c.text;
    }
}

TEST(AxReaderWriter, AListInPlaceOfTheNameIsAnItem)
{
    for (char const* text : {"((mass 3) (seats 2))", "((spares (left (power 1.5))))", "((x 1) (seats 2) (y))",
                             "(v (spares (7 (power 1)) (left) ((power 2) (cylinders 3))))"})
    {
        ReportedFindings findings;
        Vehicle vehicle;
        EXPECT_TRUE(readFrom(vehicle, text)) << text;
        EXPECT_TRUE(findings.codes().starts_with("bad-name@1:")) << findings.codes();
        Vehicle again;
        EXPECT_TRUE(readFrom(again, vehicle.writtenText())) << text;
        EXPECT_TRUE(again == vehicle) << text;
        EXPECT_EQ(again.writtenText(), vehicle.writtenText()) << text;
        EXPECT_EQ(again.writtenText(true), vehicle.writtenText(true)) << text;
    }
    ReportedFindings findings;
    Vehicle vehicle;
    readFrom(vehicle, "((mass 3) (spares (7 (power 1)) (left) ((power 2))))");
    EXPECT_EQ(findings.codes(), "bad-name@1:2 bad-name@1:20 bad-name@1:41");
    EXPECT_EQ(vehicle.writtenText(),
              "(\"\"\n  (mass 3.0)\n  (spares\n    (7 (power 1))\n    (left)\n    ((power 2))))\n");
}

TEST(AxReaderWriter, SuggestsTheNearestKeyword)
{
    ReportedFindings findings;
    Vehicle vehicle;
    readFrom(vehicle, "(m1a1 (mas 3))");
    ASSERT_EQ(findings.all.size(), 1U);
    EXPECT_EQ(findings.all[0].format(),
              "test.ope:1:8: warning: unknown keyword \"mas\" in m1a1 (Vehicle); did you mean \"mass\"? "
              "[unknown-keyword]");
}

TEST(AxReaderWriter, OffersUnknownItemsToAClassThatTakesThem)
{
    struct Taker : Vehicle
    {
        using Vehicle::Vehicle;
        bool unrecognizedItem(AxEnvironmentPtr const&, AxEnvValuePtr const& node, AxFilenameList const&,
                              AxBindingsList const&) override
        {
            auto const& item = dynamic_cast<AxEnvObject const&>(*node);
            offered += item.name().string() + ':' + std::to_string(item.count()) + ' ';
            return item.name() == "wings";
        }
        std::string offered;
    };
    ReportedFindings findings;
    Taker taker;
    EXPECT_TRUE(readFrom(taker, "(v (wings 1 (2 3)) (seats 2) (keel))"));
    EXPECT_EQ(taker.offered, "wings:2 keel:0 ");
    EXPECT_EQ(findings.codes(), "unknown-keyword@1:31");
    EXPECT_EQ(taker.writtenText(), "(v\n  (seats 2)\n  (keel))\n");
}

TEST(AxReaderWriter, AValueThatIsSetReplacesTheUnreadableItem)
{
    ReportedFindings findings;
    Vehicle vehicle;
    readFrom(vehicle, "(v (mass heavy))");
    vehicle.mass = 12.0;
    vehicle.mass.setValueSpecified(true, false);
    EXPECT_EQ(vehicle.writtenText(), "(v\n  (mass 12.0))\n");
}

TEST(AxReaderWriter, KeepsReferencesAsWritten)
{
    AxRwVariableBindings inner;
    AxRwVariableBindings outer;
    inner.set("weight", AxcCons(AxcNumber(10.0), axcNil()));
    outer.set("weight", AxcCons(AxcNumber(20.0), axcNil()));
    outer.setString("dir", "data");
    Vehicle vehicle;
    char const* const text = "(v\n  (mass $weight)\n  (seats ($places 4))\n  (label \"$(dir)/a $$(b)\")\n  (engine\n   "
                             " (power $unknown)))\n";
    ASSERT_TRUE(readFrom(vehicle, text, {&inner, &outer}));
    EXPECT_EQ(vehicle.mass.value(), 10.0);
    EXPECT_TRUE(vehicle.mass.variableIsBound());
    EXPECT_EQ(vehicle.seats.value(), 4);
    EXPECT_FALSE(vehicle.seats.variableIsBound());
    EXPECT_EQ(vehicle.label.value(), "data/a $(b)");
    EXPECT_EQ(vehicle.engine.power.value(), 1000.0);
    EXPECT_EQ(vehicle.writtenText(), text);
    EXPECT_EQ(vehicle.unboundVariables().size(), 2U);

    AxRwVariableBindings late;
    late.set("unknown", AxcCons(AxcNumber(5.0), axcNil()));
    vehicle.bindLocalVariables({&late});
    EXPECT_EQ(vehicle.engine.power.value(), 5.0);
    EXPECT_EQ(vehicle.writtenText(), text);
    vehicle.mass = 3.0;
    EXPECT_FALSE(vehicle.mass.isVariableReference());
}

TEST(AxReaderWriter, RefersToVariablesOfAnyName)
{
    for (char const* const name : {"weight", "a b", "(", ";c", "a\"b", "a\\b", "5", "$x"})
    {
        Vehicle vehicle;
        vehicle.mass.setVariableName(AxSymbolString(name));
        vehicle.mass.setIsVariableReference(true);
        std::string const text = vehicle.writtenText();
        AxRwVariableBindings set;
        set.set(AxSymbolString(name), AxcCons(AxcNumber(10.0), axcNil()));
        Vehicle again;
        EXPECT_TRUE(readFrom(again, text, {&set})) << text;
        EXPECT_EQ(again.mass.value(), 10.0) << text;
        EXPECT_EQ(again.mass.variableName(), AxSymbolString(name)) << text;
        EXPECT_EQ(again.writtenText(), text);
    }
}

TEST(AxReaderWriter, ResetGoesBackToTheInitialValues)
{
    Vehicle vehicle;
    readFrom(vehicle, "(v (mass 1) (label \"x\") (offset 9 9 9) (engine (power 2)) (spares (a)) (seats 3))");
    vehicle.reset();
    EXPECT_TRUE(vehicle == Vehicle());
    EXPECT_EQ(vehicle.offset.value(), AxVector64(0.5, -1.0, 0.0));
    EXPECT_EQ(vehicle.label.value(), "none");
    EXPECT_EQ(vehicle.writtenText(), "(v)\n");
    EXPECT_EQ(vehicle.spares.count(), 0);
}

TEST(AxReaderWriter, EqualityLooksAtMembersOnly)
{
    Vehicle a("a");
    Vehicle b("b");
    a.mass = std::numeric_limits<double>::quiet_NaN();
    b.mass = std::numeric_limits<double>::quiet_NaN();
    b.seats.setValueSpecified(true, false);
    EXPECT_TRUE(a == b);
    AxRwInt extra("extra", b.registry());
    EXPECT_FALSE(a == b);
    AxRwInt sameByAlias("surplus", a.registry());
    EXPECT_FALSE(a == b);
    extra.addAlias("surplus");
    EXPECT_TRUE(a == b);
}

TEST(AxReaderWriter, CallbackMayChangeWhatIsWritten)
{
    Vehicle vehicle("v");
    vehicle.seats.setValueSpecified(true, false);
    int calls = 0;
    AxReaderWriter::setPrePutSelfCallback(
        [](AxReaderWriter* rw, std::string&, void* context)
        {
            ++*static_cast<int*>(context);
            if (auto* seats = dynamic_cast<AxRwInt*>(rw))
            {
                *seats = 9;
            }
        },
        &calls);
    EXPECT_EQ(vehicle.writtenText(), "(v\n  (seats 9))\n");
    EXPECT_EQ(calls, 2);
    AxReaderWriter::setPrePutSelfCallback(nullptr, nullptr);
    vehicle.writtenText();
    EXPECT_EQ(calls, 2);
}

TEST(AxReaderWriter, StampsTellWhatWasUpdatedSince)
{
    Vehicle vehicle;
    double const before = vehicle.recordUpdateTime();
    EXPECT_FALSE(vehicle.wasUpdatedSince(before));
    vehicle.engine.cylinders = 8;
    EXPECT_TRUE(vehicle.wasUpdatedSince(before));
    EXPECT_FALSE(vehicle.mass.wasUpdatedSince(before));
    AxReaderWriter::setTimeSource([] { return 1e9; });
    vehicle.mass = 1.0;
    AxReaderWriter::setTimeSource({});
    EXPECT_EQ(vehicle.recordUpdateTime(), 1e9);
}

TEST(AxReaderWriter, StampsServeWhateverTheHostsClockTells)
{
    ReportedFindings findings;
    Vehicle before;
    readFrom(before, "(v (mass heavy))");
    AxReaderWriter::setTimeSource([] { return 0.5; });
    Vehicle since;
    readFrom(since, "(v (mass heavy))");
    for (Vehicle* const vehicle : {&before, &since})
    {
        EXPECT_EQ(vehicle->writtenText(), "(v\n  (mass heavy))\n");
        vehicle->mass = 12.0;
        vehicle->mass.setValueSpecified(true, false);
        EXPECT_EQ(vehicle->writtenText(), "(v\n  (mass 12.0))\n") << "what is set replaces the unreadable item";
    }
    EXPECT_EQ(since.recordUpdateTime(), 0.5);
    AxReaderWriter::setTimeSource([]() -> double { throw std::runtime_error("clock"); });
    EXPECT_NO_THROW(since.mass = 13.0);
    AxReaderWriter::setTimeSource({});
    EXPECT_TRUE(since.wasUpdatedSince(0.5)) << "the counter serves instead";
}

TEST(AxReaderWriterRegistry, KeepsBindingOrderAndLetsALaterKeywordSupersede)
{
    Vehicle vehicle;
    EXPECT_EQ(vehicle.registry()->count(), 8);
    EXPECT_EQ(vehicle.registry()->entry(6).member, &vehicle.engine);
    EXPECT_STREQ(vehicle.mass.description()->unit, "kg");
    AxRwReal other("mass", vehicle.registry());
    EXPECT_EQ(vehicle.registry()->count(), 8);
    EXPECT_EQ(vehicle.registry()->lookup("mass"), &other);
    EXPECT_EQ(vehicle.registry()->entry(7).member, &other);
    EXPECT_TRUE(vehicle.registry()->removeEntry("seats"));
    other.setName("weight");
    EXPECT_EQ(vehicle.registry()->lookup("weight"), &other);
    EXPECT_EQ(vehicle.registry()->count(), 7);
}

TEST(AxReaderWriterRegistry, ARenamedMemberKeepsItsPlaceAndWhatFollowsIt)
{
    ReportedFindings findings;
    Vehicle vehicle;
    readFrom(vehicle, "(v (mass 1) (extra 5) (seats 2))");
    vehicle.mass.setName("weight");
    EXPECT_EQ(vehicle.registry()->entry(0).member, &vehicle.mass);
    EXPECT_EQ(vehicle.registry()->lookup("weight"), &vehicle.mass);
    EXPECT_EQ(vehicle.registry()->lookup("mass"), nullptr);
    EXPECT_EQ(vehicle.writtenText(), "(v\n  (weight 1.0)\n  (extra 5)\n  (seats 2))\n");
    vehicle.seats.setName("weight");
    EXPECT_EQ(vehicle.registry()->count(), 7);
    EXPECT_EQ(vehicle.registry()->lookup("weight"), &vehicle.seats);
    vehicle.mass.setName("heaviness"); // is no member any more
    EXPECT_EQ(vehicle.registry()->count(), 7);
}

TEST(AxReaderWriterRegistry, MembersOutliveIt)
{
    auto vehicle = std::make_unique<Vehicle>();
    auto added = std::make_unique<AxRwReal>("added", vehicle->registry());
    EXPECT_EQ(added->parentRegistry(), vehicle->registry());
    AxReaderWriter* const made = vehicle->registry()->createMember("AxRwReal", "made");
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(vehicle->registry()->createMember("AxRwNothing", "none"), nullptr);
    vehicle.reset();
    EXPECT_EQ(added->parentRegistry(), nullptr);
}

TEST(AxReaderWriterFactory, EncodesAndDecodes)
{
    Vehicle vehicle("v");
    readFrom(vehicle, "(v (mass 2) (label \"x\"))");
    AxReaderWriterFactory* const factory = AxReaderWriter::factory();
    std::vector<char> buffer(static_cast<std::size_t>(factory->getSize(&vehicle)));
    EXPECT_EQ(factory->encode(&vehicle, buffer.data()), buffer.data() + buffer.size());
    Vehicle other("v");
    EXPECT_EQ(factory->decode(&other, buffer.data()), buffer.data() + buffer.size());
    EXPECT_TRUE(factory->compareReaderWriter(&vehicle, &other));
    EXPECT_FALSE(factory->compareReaderWriter(&vehicle, &other.mass));
}
