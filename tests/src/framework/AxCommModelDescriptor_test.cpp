#include "AxCommModelDescriptorList.h"
#include "DescriptorFixture.h"

using AxCommModelDescriptorTest = DescriptorFixture;

TEST_F(AxCommModelDescriptorTest, RoundTripsInItsList)
{
    char const* text = "(comm-models\n"
                       "  (vhf\n"
                       "    (comm-model-descriptor-type \"comm-model-descriptor\")\n"
                       "    (max-range 20000.0)\n"
                       "    (line-of-sight-required true)\n"
                       "    (success-probability 0.9)))\n";
    AxCommModelDescriptorList list("comm-models", nullptr);
    readFrom(list, text);
    AxCommModelDescriptor const* const vhf = list.lookupCommModelDescriptor("vhf");
    ASSERT_TRUE(vhf);
    EXPECT_EQ(vhf->maxRange(), 20000.0);
    EXPECT_EQ(vhf->transmissionDelay(), 0.0);
    EXPECT_EQ(list.writtenText(), text);
    EXPECT_EQ(AxCommModelDescriptorList(list).writtenText(), text);
}

TEST_F(AxCommModelDescriptorTest, GivesOneWarningForAnUnknownType)
{
    AxCommModelDescriptorList list("comm-models", nullptr);
    readFrom(list, "(comm-models (vhf (comm-model-descriptor-type \"comm-modle-descriptor\")))");
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(warnings.text(), "could not create signature propagator descriptor\n");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].hint, "did you mean \"comm-model-descriptor\"?");
    EXPECT_NE(list.writtenText().find("modle"), std::string::npos);
}

TEST_F(AxCommModelDescriptorTest, GivesTheSameWarningForATypeThatCannotBeMade)
{
    AxCommModelDescriptor::addCreatorFcn("throwing-descriptor",
                                         []() -> AxCommModelDescriptor* { throw std::runtime_error("no radio"); });
    AxCommModelDescriptorList list("comm-models", nullptr);
    char const* const text = "(comm-models\n  (vhf (comm-model-descriptor-type \"throwing-descriptor\")))\n";
    readFrom(list, text);
    EXPECT_EQ(warnings.text(), "could not create signature propagator descriptor\n");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].code, "creation-failed");
    EXPECT_NE(findings[0].text.find("no radio"), std::string::npos);
    EXPECT_EQ(list.writtenText(), text);
}

TEST_F(AxCommModelDescriptorTest, TakesNewTypes)
{
    AxCommModelDescriptor::addCreatorFcn("test-model-descriptor", &AxCommModelDescriptor::creator);
    AxCommModelDescriptorList list("comm-models", nullptr);
    readFrom(list, "(comm-models (vhf (comm-model-descriptor-type \"test-model-descriptor\") (max-range 1)))");
    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(warnings.text(), "");
}
