#include "AxRwBoolean.h"
#include "AxRwEntityType.h"
#include "AxRwInt.h"
#include "AxRwObjectType.h"
#include "AxRwOffsetVector.h"
#include "AxRwReal.h"
#include "AxRwString.h"
#include "AxRwTaitBryan.h"
#include "AxRwUUID.h"
#include "AxRwUnsigned.h"
#include "AxRwVector.h"
#include "platform/zedutil/Reading.h"

#include <cstring>
#include <limits>

#include <gtest/gtest.h>

namespace
{
/// What a host may do with a member in the place of its value.
template <class Member, class Value>
void standsForItsValue(Value const& value, Value const& other)
{
    SCOPED_TRACE(Member("k", nullptr).readerWriterType());
    Member member("k", nullptr);
    member = value;
    EXPECT_TRUE(member.value() == value);
    if constexpr (std::is_convertible_v<Member, Value>)
    {
        EXPECT_TRUE(static_cast<Value>(member) == value);
    }
    EXPECT_FALSE(member.valueSpecified()) << "a plain value is no item of a text";

    AxReaderWriter owner("owner", nullptr);
    Member const copy(member, owner.registry());
    EXPECT_EQ(owner.registry()->lookup(AxSymbolString("k")), &copy);
    EXPECT_TRUE(copy == member);
    EXPECT_TRUE(copy.equals(member));

    Member changed(member);
    EXPECT_TRUE(changed == member);
    std::string text = "(k ";
    Member::writeValue(text, other);
    readFrom(changed, text + ')');
    EXPECT_TRUE(changed.value() == other);
    EXPECT_FALSE(changed == member);
    EXPECT_FALSE(changed.equals(member));
    EXPECT_TRUE(copy == member) << "a copy has a value of its own";

    auto const& same = changed;
    changed = same;
    EXPECT_TRUE(changed.value() == other);
    member = changed;
    EXPECT_TRUE(member == changed);
    EXPECT_TRUE(member.valueSpecified()) << "a member brings its flag along";

    auto* const standard = new Member("k", nullptr);
    *standard = value;
    member.setDefaultRWValue(standard);
    member.reset();
    EXPECT_TRUE(member.value() == value);
    member.setDefaultRWValue(nullptr);
    member.reset();
    EXPECT_TRUE(member == Member("k", nullptr));
}
} // namespace

TEST(AxRwValueOf, EveryKindStandsForItsValue)
{
    standsForItsValue<AxRwBoolean>(true, false);
    standsForItsValue<AxRwInt>(-7, std::numeric_limits<int>::max());
    standsForItsValue<AxRwUnsigned>(7U, std::numeric_limits<unsigned>::max());
    standsForItsValue<AxRwReal>(-0.125, 1e300);
    standsForItsValue<AxRwString>(AxString("one"), AxString("$(two) \"\\"));
    standsForItsValue<AxRwVector>(AxVector64(1, 2, 3), AxVector64(1, 2, 4));
    standsForItsValue<AxRwOffsetVector>(AxVector64(1, 2, 3), AxVector64(1, 2, 4));
    standsForItsValue<AxRwTaitBryan>(AxTaitBryan(1, 2, 3), AxTaitBryan(1, 2, 4));
    standsForItsValue<AxRwEntityType>(AxEntityType(1, 1, 225, 1, 1, 3, 0), AxEntityType(1, 1, 225, 1, 1, 3, -1));
    standsForItsValue<AxRwObjectType>(AxObjectType(AxObjectType::Fields{1, 1, 1, 225, 1, 1, 3, 0}),
                                      AxObjectType(AxObjectType::Fields{1, 1, 1, 225, 1, 1, 3, 1}));
    standsForItsValue<AxRwUUID>(boost::uuids::uuid{{1}}, boost::uuids::uuid{{2}});
}

TEST(AxRwValueOf, NumbersAreCountedWithInPlace)
{
    AxRwInt whole("k", nullptr);
    EXPECT_EQ(whole += 6, 6);
    EXPECT_EQ(whole *= 7, 42);
    EXPECT_EQ(whole -= 2, 40);
    AxRwReal real("k", nullptr);
    EXPECT_EQ(real += 6.0, 6.0);
    EXPECT_EQ(real *= 0.5, 3.0);
    EXPECT_EQ(real /= 4.0, 0.75);
    EXPECT_EQ(real -= 1.0, -0.25);
    EXPECT_EQ(whole.value() + real.value(), 39.75);
}

TEST(AxRwValueOf, NotANumberIsTheSameOnlyForRecords)
{
    AxRwReal one("k", nullptr);
    one = std::numeric_limits<double>::quiet_NaN();
    AxRwReal const other(one);
    EXPECT_TRUE(one.equals(other));
    EXPECT_FALSE(one == other);
    EXPECT_FALSE(one.equals(AxRwReal("k", nullptr)));
    EXPECT_FALSE(AxRwReal("k", nullptr).equals(one));
}

TEST(AxRwValueOf, ATextKeepsItsDefaultWhileItsVariableIsUnknown)
{
    AxRwString text("text", nullptr);
    text = "default";
    readFrom(text, "(text \"$(unknown)\")");
    text.bindVariables({});
    EXPECT_EQ(text.value(), "default");
    EXPECT_EQ(text.writtenText(), "(text \"$(unknown)\")\n");
}

TEST(AxRwValueOf, AValueThatIsRefusedLeavesTheReference)
{
    ReportedFindings findings;
    for (char const* const items : {"(mass $m) (mass heavy)", "(mass ($m 7.0)) (mass heavy)"})
    {
        AxReaderWriter record("r", nullptr);
        AxRwReal mass("mass", record.registry());
        readFrom(record, "(r " + std::string(items) + ')');
        EXPECT_TRUE(mass.isVariableReference());
        EXPECT_EQ(record.writtenText(), "(r\n  " + std::string(items, std::strlen(items) - 13) + "\n  (mass heavy))\n");
    }
}

TEST(AxRwObjectType, TakesItsKeywordInEveryFormWhenItIsCopied)
{
    AxReaderWriterRegistry registry;
    AxRwObjectType from("from", nullptr);
    from = AxObjectType(1, 2, 3, 4, 5, 6, 7);
    AxRwObjectType const copies[] = {
        {from, "a", &registry}, {from, AxString("b"), &registry}, {from, AxSymbolString("c"), &registry}};
    for (AxRwObjectType const& copy : copies)
    {
        EXPECT_EQ(copy.value(), from.value());
        EXPECT_EQ(registry.lookup(copy.AxReaderWriter::name()), &copy);
    }
}
