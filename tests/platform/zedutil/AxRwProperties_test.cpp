#include "AxRwProperties.h"

#include "AxRwInt.h"
#include "AxRwString.h"
#include "AxRwVariableBindings.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>

TEST(AxRwProperties, ReplaceAPropertyOfTheSameNameAndMoveItToTheEnd)
{
    AxRwProperties properties("p", nullptr);
    readFrom(properties, "(p (a AxRwInt 1) (b AxRwInt 2) (a AxRwString \"x\"))");
    EXPECT_EQ(properties.writtenText(), "(p\n  (b AxRwInt 2)\n  (a AxRwString \"x\"))\n");
    AxRwInt seven("any", nullptr);
    seven = 7;
    ASSERT_TRUE(properties.set("b", seven));
    EXPECT_EQ(properties.writtenText(), "(p\n  (a AxRwString \"x\")\n  (b AxRwInt 7))\n");
    EXPECT_TRUE(properties.set("c", *properties.find("a")->rwValue()));
    EXPECT_TRUE(properties.set("a", *properties.find("a")->rwValue()));
    EXPECT_EQ(properties.count(), 3);
    EXPECT_TRUE(properties.remove("b"));
    EXPECT_FALSE(properties.remove("b"));
    EXPECT_FALSE(properties.find("b"));
    EXPECT_FALSE(properties.add("d", "NoSuchType"));
}

TEST(AxRwProperties, ReportAndKeepWhatTheyCannotRead)
{
    ReportedFindings findings;
    AxRwProperties properties("p", nullptr);
    readFrom(properties, "(p (a NoSuchType 1 2) (b AxRwInt x) (c AxRwInt 3) (d))");
    EXPECT_EQ(findings.warnings().substr(0, findings.warnings().find('\n') + 1),
              "Unknown type \"NoSuchType\" of property a\n");
    EXPECT_EQ(findings.codes(), "unknown-type@1:7 wrong-kind@1:34 wrong-kind@1:51");
    EXPECT_EQ(properties.count(), 1);
    EXPECT_EQ(properties.writtenText(), "(p\n  (a NoSuchType 1 2)\n  (b AxRwInt x)\n  (c AxRwInt 3)\n  (d))\n");
}

TEST(AxRwProperty, HoldsReferencesForItsValueAndForAllOfIt)
{
    AxRwProperties properties("p", nullptr);
    readFrom(properties, "(p (a AxRwInt $n) (b $whole))");
    EXPECT_TRUE(properties.hasVariableReference());
    EXPECT_EQ(properties.unboundVariables().size(), 2U);
    AxRwVariableBindings set;
    readFrom(set, "(variable-bindings (n 4) (whole AxRwString \"x\"))");
    properties.bindVariables({&set});
    EXPECT_TRUE(properties.unboundVariables().empty());
    EXPECT_EQ(dynamic_cast<AxRwInt&>(*properties.find("a")->rwValue()).value(), 4);
    EXPECT_EQ(dynamic_cast<AxRwString&>(*properties.find("b")->rwValue()).value(), "x");
    EXPECT_EQ(properties.writtenText(), "(p\n  (a AxRwInt $n)\n  (b $whole))\n");
}

TEST(AxRwProperty, IsTheOnlyReaderWriterThatAnswersItself)
{
    AxRwProperty property("p", nullptr);
    EXPECT_EQ(property.property(), &property);
    EXPECT_FALSE(AxRwInt("i", nullptr).property());
    EXPECT_TRUE(property.setType("AxRwInt"));
    EXPECT_FALSE(property.setType("NoSuchType"));
    EXPECT_EQ(property.type(), "AxRwInt");
}

TEST(AxRwProperty, IsEmptyWithoutAType)
{
    AxRwProperty property("p", nullptr), other("p", nullptr);
    AxRwVariableBindings set;
    readFrom(set, "(variable-bindings (n 4))");
    property.bindVariables({&set});
    property.bindLocalVariables({&set});
    property.clearAllVariableReferenceFlags();
    property.reset();
    EXPECT_TRUE(property.unboundVariables().empty());
    EXPECT_FALSE(property.hasVariableReference());
    EXPECT_EQ(property.recordUpdateTime(), static_cast<AxReaderWriter&>(property).AxReaderWriter::recordUpdateTime());
    EXPECT_TRUE(property.equals(other));
    std::string written;
    property.putData(written, 0);
    EXPECT_EQ(written, "");
    ASSERT_TRUE(other.setType("AxRwInt"));
    EXPECT_FALSE(property.equals(other));
    other = property;
    EXPECT_FALSE(other.rwValue());
    EXPECT_TRUE(property.equals(other));
    AxRwProperty const& same = property;
    property = same;
    EXPECT_TRUE(property.equals(other));
    AxRwProperty named("q", nullptr);
    EXPECT_FALSE(property.equals(named));
}

TEST(AxRwProperty, TakesItsValueAlongWhenVariablesAndMarksChange)
{
    AxRwProperty property("p", nullptr);
    readFrom(property, "(p AxRwInt $n)");
    EXPECT_TRUE(property.hasVariableReference());
    EXPECT_EQ(property.unboundVariables().size(), 1U);
    AxRwVariableBindings set;
    readFrom(set, "(variable-bindings (n 4))");
    property.bindLocalVariables({&set});
    EXPECT_EQ(dynamic_cast<AxRwInt&>(*property.rwValue()).value(), 4);
    property.clearAllVariableReferenceFlags();
    EXPECT_FALSE(property.hasVariableReference());
    EXPECT_EQ(property.writtenText(), "(p AxRwInt 4)\n");
    property.reset();
    EXPECT_EQ(dynamic_cast<AxRwInt&>(*property.rwValue()).value(), 0);
}

TEST(AxRwProperties, ReplaceInALongTextAsInAShortOne)
{
    std::string text = "(p";
    for (int i = 0; i < 400; ++i)
    {
        text += " (n" + std::to_string(i % 150) + " AxRwInt " + std::to_string(i) + ')';
    }
    AxRwProperties properties("p", nullptr);
    readFrom(properties, text + ")");
    EXPECT_EQ(properties.count(), 150);
    int expected = 250;
    for (AxRwProperty const* property : properties)
    {
        EXPECT_EQ(property->AxReaderWriter::name(), "n" + std::to_string(expected % 150));
        ++expected;
    }
}
