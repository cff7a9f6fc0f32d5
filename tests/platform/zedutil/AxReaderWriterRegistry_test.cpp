#include "AxReaderWriterRegistry.h"

#include "AxReaderWriterFactory.h"
#include "AxRecordOf.h"
#include "AxRwInt.h"
#include "AxRwReal.h"
#include "AxRwString.h"

#include <array>
#include <gtest/gtest.h>
#include <memory>
#include <optional>
#include <string>
#include <typeinfo>

namespace
{
constexpr int theMost = 80;

char const* word(int number)
{
    static std::array<std::string, theMost + 1> const words = []
    {
        std::array<std::string, theMost + 1> made;
        for (int i = 0; i <= theMost; ++i)
        {
            made[static_cast<std::size_t>(i)] = "member-" + std::to_string(i);
        }
        return made;
    }();
    return words[static_cast<std::size_t>(number)].c_str();
}

/// A record of `n` numbers, one in each class of a chain, so that longer ones begin like shorter ones.
template <int n>
class Numbers : public Numbers<n - 1>
{
public:
    using Numbers<n - 1>::Numbers;
    AxRwInt last{AxKeyword{word(n)}, n, this->registry()};
};
template <>
class Numbers<0> : public AxRecordOf<Numbers<0>, "numbers">
{
public:
    using AxRecordOf::AxRecordOf;
};

/// Begins as the numbers do and goes on in its own way.
template <class Last>
class Fork : public Numbers<20>
{
public:
    using Numbers::Numbers;
    Last last{AxKeyword{"fork"}, this->registry()};
    AxRwString end{AxKeyword{"end"}, "of it", this->registry()};
};

std::string words(AxReaderWriter const& record)
{
    std::string all;
    AxReaderWriterRegistry const& registry = *record.registryIfAny();
    for (std::size_t i = 0; i < registry.size(); ++i)
    {
        all += registry.entry(i).keyword.string().string() + ' ';
    }
    return all;
}
} // namespace

TEST(AxReaderWriterRegistryTest, ListsLongRecordsInBindingOrder)
{
    std::string expected;
    for (int i = 1; i <= theMost; ++i)
    {
        expected += word(i) + std::string(" ");
    }
    for (int round = 0; round < 3; ++round)
    {
        Numbers<theMost> const record("r", nullptr);
        EXPECT_EQ(words(record), expected);
        EXPECT_EQ(record.registryIfAny()->lookup(word(33))->name(), word(33));
        EXPECT_EQ(record.registryIfAny()->lookup("fork"), nullptr);
    }
}

TEST(AxReaderWriterRegistryTest, KeepsClassesApartThatBeginAlike)
{
    for (int round = 0; round < 3; ++round)
    {
        Fork<AxRwReal> const reals("r", nullptr);
        Fork<AxRwInt> const integers("r", nullptr);
        Numbers<40> const numbers("r", nullptr);
        EXPECT_EQ(reals.registryIfAny()->size(), 22U);
        EXPECT_EQ(words(reals), words(integers));
        EXPECT_EQ(numbers.registryIfAny()->size(), 40U);
        EXPECT_EQ(numbers.registryIfAny()->entry(39).member, &numbers.last);
        EXPECT_EQ(integers.registryIfAny()->entry(20).member, &integers.last);
    }
}

TEST(AxReaderWriterRegistryTest, TellsClassesApartThatBindOneKeywordAtOnePlace)
{
    struct Near : AxRecordOf<Near, "near">
    {
        using AxRecordOf::AxRecordOf;
        AxRwReal distance{{"at-distance", "m", "How near.", {0.0, 10.0}}, 5.0, registry()};
    };
    struct Far : AxRecordOf<Far, "far">
    {
        using AxRecordOf::AxRecordOf;
        AxRwReal distance{{"at-distance", "km", "How far.", {100.0, 200.0}}, 150.0, registry()};
    };
    for (int round = 0; round < 2; ++round)
    {
        Near near("n", nullptr);
        Far far("f", nullptr);
        EXPECT_STREQ(near.distance.description()->help, "How near.");
        EXPECT_STREQ(far.distance.description()->unit, "km");
        EXPECT_EQ(far.distance.description()->range.low, 100.0);
        EXPECT_EQ(*near.registry()->declaringClass(&near.distance), typeid(Near));
        EXPECT_EQ(*far.registry()->declaringClass(&far.distance), typeid(Far));
        near.distance = far.distance = 1.0;
        near.reset();
        far.reset();
        EXPECT_EQ(near.distance, 5.0);
        EXPECT_EQ(far.distance, 150.0);
    }
}

TEST(AxReaderWriterRegistryTest, TellsTheClassThatDeclaresAMember)
{
    Fork<AxRwReal> record("r", nullptr);
    AxRwInt const loose("loose", record.registry());
    EXPECT_EQ(*record.registry()->declaringClass(record.registry()->lookup(word(3))), typeid(Numbers<3>));
    EXPECT_EQ(*record.registry()->declaringClass(&record.end), typeid(Fork<AxRwReal>));
    EXPECT_EQ(record.registry()->declaringClass(&loose), nullptr);
}

TEST(AxReaderWriterRegistryTest, CopiesAndComparesOnlyMembersOfOneKind)
{
    Fork<AxRwReal> reals("r", nullptr);
    Fork<AxRwInt> integers("r", nullptr);
    reals.last = 2.5;
    integers.last = 7;
    EXPECT_FALSE(reals.AxReaderWriter::operator==(integers));
    reals.end = "other";
    integers.assign(reals);
    EXPECT_EQ(integers.last, 7);
    EXPECT_EQ(integers.end, "other");
}

TEST(AxReaderWriterRegistryTest, LetsMembersLeaveInAnyOrder)
{
    struct Loose : AxRecordOf<Loose, "loose">
    {
        using AxRecordOf::AxRecordOf;
        std::optional<AxRwInt> first{std::in_place, AxKeyword{"first"}, registry()};
        std::optional<AxRwInt> second{std::in_place, AxKeyword{"second"}, registry()};
        std::optional<AxRwInt> third{std::in_place, AxKeyword{"third"}, registry()};
    };
    Loose loose("r", nullptr);
    loose.second.reset();
    EXPECT_EQ(words(loose), "first third ");
    EXPECT_EQ(loose.first->name(), "first");
    loose.third.reset();
    EXPECT_EQ(words(loose), "first ");
    loose.second.emplace(AxKeyword{"second"}, loose.registry());
    EXPECT_EQ(words(loose), "first second ");
    EXPECT_EQ(words(Loose("r", nullptr)), "first second third ");
}

TEST(AxReaderWriterRegistryTest, HoldsARecordThatWasBoundByName)
{
    Numbers<2> outer("outer", nullptr);
    {
        Numbers<1> const inner("inner", outer.registry());
        EXPECT_EQ(outer.registry()->lookup("inner"), &inner);
        EXPECT_EQ(inner.parentRegistry(), outer.registry());
    }
    EXPECT_EQ(outer.registry()->lookup("inner"), nullptr);
    auto const made = std::make_unique<Numbers<1>>(AxKeyword{"by-keyword"}, outer.registry());
    EXPECT_EQ(outer.registry()->lookup("by-keyword"), made.get());
    EXPECT_EQ(made->name(), "by-keyword");
}

TEST(AxReaderWriterRegistryTest, AMemberStandsWhereItWasEnteredLast)
{
    Numbers<1> first("first", nullptr);
    Numbers<1> second("second", nullptr);
    {
        AxRwReal real("real", first.registry());
        first.registry()->addEntry("again", &real);
        EXPECT_EQ(words(first), "member-1 again ");
        second.registry()->addEntry("moved", &real);
        EXPECT_EQ(words(first), "member-1 ");
        EXPECT_EQ(words(second), "member-1 moved ");
    }
    EXPECT_EQ(words(second), "member-1 ");
    second.registry()->addEntry("taken", &first.last);
    EXPECT_EQ(words(first), "");
    EXPECT_EQ(words(second), "member-1 taken ");
}

#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor" // as its base
TEST(AxReaderWriterRegistryTest, AsksTheFactoryOfTheHostWhetherMembersAreEqual)
{
    class Lenient : public AxReaderWriterFactory
    {
    public:
        bool compareReaderWriter(AxReaderWriter const*, AxReaderWriter const*) const override { return true; }
    };
    Lenient lenient;
    Numbers<2> one("r", nullptr);
    Numbers<2> other("r", nullptr);
    one.last = 7;
    EXPECT_FALSE(one == other);
    AxReaderWriter::setFactory(&lenient);
    EXPECT_TRUE(one == other);
    AxReaderWriter::setFactory(nullptr);
    EXPECT_FALSE(one == other);
}
#pragma GCC diagnostic pop
