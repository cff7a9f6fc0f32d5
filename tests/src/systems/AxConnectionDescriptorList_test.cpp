#include "AxConnectionDescriptorList.h"

#include "AxSinkScope.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>

TEST(AxConnectionDescriptorList, WritesWhatItReads)
{
    AxConnectionDescriptorList list("connections", nullptr);
    EXPECT_FALSE(list.valueSpecified());
    readFrom(list, "(connections (connect a b) (join system:in \"has blank\") (connect 12 $x))");
    ASSERT_EQ(list.count(), 3);
    EXPECT_TRUE((*list.begin())->name().isNull());
    EXPECT_EQ((*list.begin())->source(), "a");
    EXPECT_EQ((*list.begin())->destination(), "b");
    std::string const text = "(connections\n"
                             "  (connect a b)\n"
                             "  (connect system:in \"has blank\")\n"
                             "  (connect \"12\" \"$x\"))\n";
    EXPECT_EQ(list.writtenText(), text);
    AxConnectionDescriptorList again("connections", nullptr);
    readFrom(again, text);
    EXPECT_TRUE(again == list);
    EXPECT_EQ(again.writtenText(), text);
}

TEST(AxConnectionDescriptorList, StandsInATreeAsConnections)
{
    AxConnectionDescriptorList list("connections", nullptr);
    readFrom(list, "(connections (connect a b) (connect system:in \"has blank\"))");
    EXPECT_NE(list.toXml().string().find("<connections name=\"connections\">\n  <connection"), std::string::npos)
        << list.toXml().string();
    AxConnectionDescriptorList back("connections", nullptr);
    ASSERT_TRUE(back.fromXml(list.toXml()));
    EXPECT_EQ(back.writtenText(), list.writtenText());
}

TEST(AxConnectionDescriptorList, ReportsMissingEndpointsAndKeepsFurtherItems)
{
    AxSinkScope warnings(AxWarn);
    AxConnectionDescriptorList list("connections", nullptr);
    readFrom(list, "(connections (connect $x) (connect a b (gain 2)) c)");
    ASSERT_EQ(list.count(), 2);
    EXPECT_EQ((*list.begin())->source(), "$x");
    EXPECT_EQ((*list.begin())->destination(), "");
    EXPECT_NE(warnings.text().find("a connection expects a source and a destination"), std::string::npos);
    EXPECT_EQ(list.writtenText(), "(connections\n  (connect \"$x\" \"\")\n  (connect a b\n    (gain 2))\n  c)\n");
}

TEST(AxConnectionDescriptorList, FindsAndRemovesByEndpoints)
{
    AxConnectionDescriptorList list("connections", nullptr);
    AxConnectionDescriptor* const first = list.addConnection("a", "b");
    list.addConnection("a", "c");
    list.addConnection("d", "b");
    list.addConnection("a", "b");
    EXPECT_EQ(first->name(), AxString("connect"));
    EXPECT_EQ(list.findConnection("a", "b"), first);
    EXPECT_EQ(list.findConnection("a", "B"), nullptr);
    EXPECT_TRUE(list.removeConnection("a", "b"));
    EXPECT_FALSE(list.removeConnection("a", "b"));
    EXPECT_EQ(list.count(), 2);
    AxConnectionDescriptor* const second = list.findConnection("a", "c");
    EXPECT_TRUE(list.removeConnection(second));
    AxConnectionDescriptor stranger("connect", "d", "b", nullptr);
    EXPECT_FALSE(list.removeConnection(&stranger));
    EXPECT_EQ(list.count(), 1);
}

TEST(AxConnectionDescriptorList, RemovesAllOfOneEndpointInOnePass)
{
    AxConnectionDescriptorList list("connections", nullptr);
    for (char const* destination : {"x", "y", "z"})
    {
        list.addConnection("a", destination);
        list.addConnection(destination, "a");
    }
    EXPECT_TRUE(list.removeAllConnectionsFrom("a"));
    EXPECT_FALSE(list.removeAllConnectionsFrom("a"));
    EXPECT_EQ(list.count(), 3);
    list.removeConnections({list.findConnection("x", "a"), list.findConnection("z", "a"), nullptr});
    EXPECT_EQ(list.count(), 1);
    EXPECT_TRUE(list.removeAllConnectionsTo("a"));
    EXPECT_FALSE(list.removeAllConnectionsTo("a"));
    EXPECT_TRUE(list.isEmpty());
}

TEST(AxConnectionDescriptorList, BoundaryNamesCarryThePrefix)
{
    AxConnectionDescriptorList list("connections", nullptr);
    list.addConnection("system:radar-in", "x");
    list.addConnection("plain-in", "system:out");
    EXPECT_TRUE(list.hasSystemInput("radar-in"));
    EXPECT_FALSE(list.hasSystemInput("plain-in"));
    EXPECT_FALSE(list.hasSystemInput("radar"));
    EXPECT_FALSE(list.hasSystemInput("out"));
    EXPECT_TRUE(list.hasSystemOutput("out"));
    EXPECT_FALSE(list.hasSystemOutput("radar-in"));
}

TEST(AxConnectionDescriptorList, ExplicitlyEmptyIsWrittenEmptiedIsNot)
{
    AxConnectionDescriptorList list("connections", nullptr);
    list.addConnection("a", "b");
    list.removeAll();
    EXPECT_TRUE(list.isEmpty());
    EXPECT_TRUE(list.valueSpecified());
    list.addConnection("a", "b");
    list.emptyList();
    EXPECT_TRUE(list.isEmpty());
    EXPECT_FALSE(list.valueSpecified());
}

TEST(AxConnectionDescriptorList, CopiesDeeply)
{
    AxConnectionDescriptorList list("connections", nullptr);
    list.addConnection("a", "b");
    std::unique_ptr<AxConnectionDescriptorList> const clone(list.clone(nullptr));
    EXPECT_TRUE(*clone == list);
    EXPECT_EQ(clone->writtenText(), list.writtenText());
    (*clone->begin())->setDestination("c");
    EXPECT_FALSE(*clone == list);
    clone->copyList(list);
    EXPECT_EQ(clone->count(), 2);
    *clone = list;
    EXPECT_TRUE(*clone == list);
}

TEST(AxConnectionDescriptor, AssignmentTakesTheNameEqualityIgnoresIt)
{
    AxSinkScope warnings(AxWarn);
    AxConnectionDescriptor made;
    EXPECT_EQ(warnings.text(), "AxConnectionDescriptor default constructor should not be used\n");
    AxConnectionDescriptor const other("connect", "a", "b", nullptr);
    made.setSource("a");
    made.setDestination("b");
    EXPECT_TRUE(made == other);
    made.init();
    EXPECT_FALSE(made == other);
    made = other;
    EXPECT_TRUE(made == other);
    EXPECT_EQ(made.name(), AxString("connect"));
}

TEST(AxConnectionDescriptorList, RemovesByTextsOfItsOwnElements)
{
    AxConnectionDescriptorList list("connections", nullptr);
    std::string const shared(40, 'a');
    list.addConnection(shared.c_str(), "b");
    list.addConnection(shared.c_str(), "c");
    EXPECT_TRUE(list.removeAllConnectionsFrom((*list.begin())->source()));
    EXPECT_TRUE(list.isEmpty());
    list.addConnection("a", "b");
    list.copyList(list);
    EXPECT_EQ(list.count(), 1);
}

TEST(AxConnectionDescriptorList, KeepsAnElementWhoseEndpointIsAList)
{
    AxSinkScope warnings(AxWarn);
    AxConnectionDescriptorList list("connections", nullptr);
    readFrom(list, "(connections (connect (a) b) (connect) (connect c d))");
    EXPECT_NE(warnings.text().find("test.ope:1:14: "), std::string::npos);
    EXPECT_NE(warnings.text().find("test.ope:1:30: "), std::string::npos);
    EXPECT_NE(list.writtenText().find("(connect (a) b)"), std::string::npos);
    EXPECT_NE(list.findConnection("c", "d"), nullptr);
}
