#include "AxComponentDescriptorList.h"

#include "AxReaderWriterFactory.h"
#include "DescriptorFixture.h"

namespace
{
using AxComponentDescriptorListTest = DescriptorFixture;

std::string names(AxComponentDescriptorList const& list)
{
    std::string text;
    for (AxComponentDescriptor const* descriptor : list)
    {
        text += descriptor->name().string().string() + ' ';
    }
    return text;
}

std::string element(std::string const& name, std::string const& items = "")
{
    return "(" + name + " (component-descriptor-type \"component-descriptor\")" + items + ")";
}
} // namespace

TEST_F(AxComponentDescriptorListTest, KeepsTheLaterOfTwoNamesAtTheEnd)
{
    AxComponentDescriptorList list("sensors", nullptr);
    EXPECT_FALSE(list.valueSpecified());
    readFrom(list, "(sensors " + element("eye", "(min-tick-period 1.0)") + element("ear") +
                       element("eye", "(min-tick-period 2.0)") + ")");
    EXPECT_EQ(names(list), "ear eye ");
    EXPECT_EQ(list.lookupComponentDescriptor("eye")->minTickPeriod(), 2.0);
    EXPECT_EQ(list.lookupComponentDescriptor("a name never heard of"), nullptr);
    EXPECT_TRUE(list.valueSpecified());
    EXPECT_STREQ(list.readerWriterType(), "AxComponentDescriptorList");
}

TEST_F(AxComponentDescriptorListTest, KeepsOtherElementsAndTheTextOfAnUnknownOne)
{
    AxComponentDescriptorList list("sensors", nullptr);
    readFrom(list,
             "(sensors " + element("eye") + "(nose (component-descriptor-type \"smell\"))" + element("ear") + ")");
    EXPECT_EQ(names(list), "eye ear ");
    EXPECT_EQ(warnings.text(), "Can't create component descriptor of type smell.  No creator found.\n"
                               "could not create component descriptor\n");
    EXPECT_EQ(findings.size(), 1U);
    std::string const text = list.writtenText();
    std::size_t const kept = text.find("(nose (component-descriptor-type \"smell\"))");
    EXPECT_LT(text.find("(eye"), kept);
    EXPECT_LT(kept, text.find("(ear"));
}

TEST_F(AxComponentDescriptorListTest, CopiesDeeplyAndKeepsItsFlag)
{
    AxComponentDescriptorList list("sensors", nullptr);
    readFrom(list, "(sensors " + element("eye") + element("ear") + ")");
    AxComponentDescriptorList copy(list);
    EXPECT_EQ(copy, list);
    EXPECT_EQ(copy.writtenText(), list.writtenText());
    EXPECT_NE(copy.lookupComponentDescriptor("eye"), list.lookupComponentDescriptor("eye"));

    AxComponentDescriptorList assigned("controllers", nullptr);
    assigned.addComponentDescriptor(AxComponentDescriptor("old", nullptr));
    assigned = list;
    EXPECT_EQ(assigned, list);
    EXPECT_EQ(assigned.name(), "controllers");
    AxComponentDescriptorList const& self = assigned;
    assigned = self;
    EXPECT_EQ(names(assigned), "eye ear ");

    assigned.emptyList();
    EXPECT_FALSE(assigned.valueSpecified());
    list = assigned;
    EXPECT_FALSE(list.valueSpecified());
}

TEST_F(AxComponentDescriptorListTest, ComparesOrderNamesAndClasses)
{
    auto const listOf = [](AxComponentDescriptorList& list, std::initializer_list<char const*> elements)
    {
        for (char const* name : elements)
        {
            list.addComponentDescriptor(AxComponentDescriptor(name, nullptr));
        }
    };
    AxComponentDescriptorList ab;
    AxComponentDescriptorList ba;
    AxComponentDescriptorList a;
    AxComponentDescriptorList otherFlag;
    listOf(ab, {"a", "b"});
    listOf(ba, {"b", "a"});
    listOf(a, {"a"});
    listOf(otherFlag, {"a", "b"});
    otherFlag.lookupComponentDescriptor("b")->setIsEnabled(false);
    EXPECT_FALSE(ab == ba);
    EXPECT_FALSE(ab == a);
    EXPECT_FALSE(ab == otherFlag);
    EXPECT_FALSE(AxReaderWriter::factory()->compareReaderWriter(&ab, &ba));
    EXPECT_TRUE(AxReaderWriter::factory()->copyReaderWriter(&ab, &ba));
    EXPECT_TRUE(AxReaderWriter::factory()->compareReaderWriter(&ab, &ba));
}

TEST_F(AxComponentDescriptorListTest, AnswersTheCopyItAdds)
{
    AxComponentDescriptor const eye("eye", nullptr);
    AxComponentDescriptorList list("sensors", nullptr);
    AxComponentDescriptor* const added = list.addComponentDescriptor(eye);
    EXPECT_NE(added, &eye);
    EXPECT_EQ(list.lookupComponentDescriptor("eye"), added);
    EXPECT_TRUE(list.valueSpecified());
}

TEST_F(AxComponentDescriptorListTest, IgnoresItselfAsASource)
{
    AxComponentDescriptorList list("sensors", nullptr);
    list.addComponentDescriptor(AxComponentDescriptor("eye", nullptr));
    list.copyList(list);
    EXPECT_EQ(names(list), "eye ");
}

TEST_F(AxComponentDescriptorListTest, ACopyHoldsEachNameOnceWhateverTheSourceHolds)
{
    for (int others : {1, 40})
    {
        AxComponentDescriptorList list("sensors", nullptr);
        for (int i = 0; i < others; ++i)
        {
            list.addComponentDescriptor(AxComponentDescriptor("ear" + std::to_string(i), nullptr));
        }
        list.addComponentDescriptor(AxComponentDescriptor("nose", nullptr))->setName("eye");
        list.addToEnd(new AxComponentDescriptor("eye", nullptr));
        static_cast<AxComponentDescriptor*>(AxRwList::element(list.last()))->setMinTickPeriod(2.0);
        AxComponentDescriptorList const copy(list);
        EXPECT_EQ(copy.count(), others + 1);
        EXPECT_EQ(copy.lookupComponentDescriptor("eye")->minTickPeriod(), 2.0);
    }
}

TEST_F(AxComponentDescriptorListTest, ATypeWithoutACreatorIsReportedOnce)
{
    AxComponentDescriptor::addComponentDescriptorCreatorFcn("empty-descriptor", nullptr);
    AxComponentDescriptorList list("sensors", nullptr);
    readFrom(list, "(sensors (eye (component-descriptor-type \"empty-descriptor\")))");
    EXPECT_EQ(warnings.text(), "Can't create component descriptor of type empty-descriptor.  No creator found.\n"
                               "could not create component descriptor\n");
}

TEST_F(AxComponentDescriptorListTest, KeepsTheLaterOfTwoNamesInALongListToo)
{
    std::string text = "(sensors ";
    std::string expected;
    for (int round = 0; round < 2; ++round)
    {
        for (int i = 0; i < 200; ++i)
        {
            std::string const name = "s" + std::to_string(round == 0 ? i : 199 - i);
            text += element(name);
            expected += round == 0 ? "" : name + ' ';
        }
    }
    AxComponentDescriptorList list("sensors", nullptr);
    readFrom(list, text + ")");
    EXPECT_EQ(names(list), expected);
}
