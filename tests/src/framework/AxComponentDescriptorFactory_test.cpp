#include "AxComponentDescriptorFactory.h"

#include "AxComponentDescriptorFactoryEntry.h"
#include "DescriptorFixture.h"

#include <memory>
#include <stdexcept>

namespace
{
using AxComponentDescriptorFactoryTest = DescriptorFixture;

AxComponentDescriptor* makeNamed()
{
    return new AxComponentDescriptor("made by the second creator", nullptr);
}
} // namespace

TEST_F(AxComponentDescriptorFactoryTest, MatchesNamesExactly)
{
    EXPECT_EQ(factory.createComponentDescriptor("Component-Descriptor"), nullptr);
    EXPECT_EQ(warnings.text(), "Can't create component descriptor of type Component-Descriptor.  No creator found.\n");
}

TEST_F(AxComponentDescriptorFactoryTest, ReplacesAKnownTypeInItsPlace)
{
    AxComponentDescriptorFactory own;
    own.addCreatorFcn("a", &AxComponentDescriptor::creator);
    own.addCreatorFcn("b", &AxComponentDescriptor::creator);
    own.addCreatorFcn("a", &makeNamed);
    EXPECT_EQ(own.count(), 2);
    EXPECT_EQ(static_cast<AxComponentDescriptorFactoryEntry*>(own.first()->data())->typeToCreate(), "a");
    std::unique_ptr<AxComponentDescriptor> const made(own.createComponentDescriptor("a"));
    EXPECT_EQ(made->name(), "made by the second creator");
}

TEST_F(AxComponentDescriptorFactoryTest, CopiesWhatTheOtherHas)
{
    factory.addCreatorFcn("extra", &makeNamed);
    AxDefaultComponentDescriptorFactory const copy(factory);
    EXPECT_EQ(copy.count(), factory.count());
    EXPECT_NE(copy.lookup(AxStringHashKey("extra")), nullptr);

    AxComponentDescriptorFactory assigned;
    assigned.addCreatorFcn("old", &makeNamed);
    assigned = factory;
    EXPECT_EQ(assigned.count(), factory.count());
    EXPECT_EQ(assigned.lookup(AxStringHashKey("old")), nullptr);
    EXPECT_NE(assigned.lookup(AxStringHashKey("extra")), factory.lookup(AxStringHashKey("extra")));
}

TEST_F(AxComponentDescriptorFactoryTest, TakesATypeWithoutACreatorForUnknown)
{
    factory.addCreatorFcn("empty", nullptr);
    EXPECT_EQ(factory.createComponentDescriptor("empty"), nullptr);
    EXPECT_EQ(warnings.text(), "Can't create component descriptor of type empty.  No creator found.\n");
}

TEST_F(AxComponentDescriptorFactoryTest, DeletesAnEntryWhoseTypeWasChanged)
{
    AxComponentDescriptorFactory own;
    own.addCreatorFcn("a", &makeNamed);
    own.addCreatorFcn("b", &makeNamed);
    static_cast<AxComponentDescriptorFactoryEntry*>(own.first()->data())->setTypeToCreate("b");
    own = factory;
    EXPECT_EQ(own.count(), factory.count());
    EXPECT_EQ(own.lookup(AxStringHashKey("a")), nullptr);
}

TEST_F(AxComponentDescriptorFactoryTest, ReportsACreatorThatThrows)
{
    factory.addCreatorFcn("bad",
                          []() -> AxComponentDescriptor* { throw std::runtime_error("no memory on the device"); });
    EXPECT_EQ(AxComponentDescriptor::createComponentDescriptor("bad"), nullptr);
    EXPECT_EQ(create("(x (component-descriptor-type \"bad\"))"), nullptr);
    ASSERT_EQ(findings.size(), 2U);
    EXPECT_EQ(findings[1].code, "creation-failed");
    EXPECT_EQ(findings[1].line, 1U);
    EXPECT_EQ(create("(x)"), nullptr);
    EXPECT_EQ(findings.back().line, 1U);
}
