#include "AxComponentDescriptor.h"

#include "AxActuatorComponentDescriptor.h"
#include "AxLaserDetectorDescriptor.h"
#include "DescriptorFixture.h"

#include <memory>

namespace
{
using AxComponentDescriptorTest = DescriptorFixture;

bool isSpecified(AxComponentDescriptor& descriptor, char const* keyword)
{
    return descriptor.registry()->lookup(keyword)->valueSpecified();
}
} // namespace

TEST_F(AxComponentDescriptorTest, StartsWithElevenMembersTwoOfThemSpecified)
{
    struct
    {
        char const* keyword;
        bool specified;
    } const members[] = {{"component-type", false},
                         {"min-tick-period", false},
                         {"min-tick-period-variance", false},
                         {"tick-period-uses-real-time", false},
                         {"process-state-repository-name", false},
                         {"process-state-repository-type", false},
                         {"is-enabled", true},
                         {"debug-detail", false},
                         {"min-task-visualization-tick-period", false},
                         {"create-component", true},
                         {"create-on-remote-object", false}};
    AxComponentDescriptor descriptor("engine", nullptr);
    ASSERT_EQ(descriptor.registry()->count(), 11);
    std::size_t place = 0;
    for (auto const& [keyword, specified] : members)
    {
        AxRegistryEntry const entry = descriptor.registry()->entry(place++);
        EXPECT_EQ(entry.keyword, keyword);
        EXPECT_EQ(entry.member->valueSpecified(), specified) << keyword;
    }
    EXPECT_TRUE(descriptor.registry()->localData());
    EXPECT_TRUE(descriptor.isEnabled() && descriptor.createComponent() && !descriptor.createOnRemoteObject());
    EXPECT_EQ(descriptor.minTickPeriod(), -1.0);
    EXPECT_EQ(descriptor.minTickPeriodVariance(), -1.0);
    EXPECT_EQ(descriptor.minTaskVisualizationTickPeriod(), -1.0);
}

TEST_F(AxComponentDescriptorTest, IsNotCopiedIntoAnotherClass)
{
    AxComponentDescriptor descriptor("engine", nullptr);
    AxActuatorComponentDescriptor actuator("actuator", nullptr);
    actuator.setMinTickPeriod(2.0);
    EXPECT_FALSE(AxReaderWriter::factory()->copyReaderWriter(&actuator, &descriptor));
    EXPECT_EQ(descriptor.minTickPeriod(), -1.0);
    AxActuatorComponentDescriptor other("other", nullptr);
    EXPECT_TRUE(AxReaderWriter::factory()->copyReaderWriter(&actuator, &other));
    EXPECT_EQ(other.minTickPeriod(), 2.0);
}

TEST_F(AxComponentDescriptorTest, AMissingTypeItemHasThePlaceOfItsList)
{
    AxComponentDescriptor("engine", nullptr)
        .getSelf(cellsOf("  (engine)"), AxReaderWriter::nullFilenames(), AxReaderWriter::nullVariableReference());
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].line, 1U);
    EXPECT_EQ(findings[0].column, 3U);
}

TEST_F(AxComponentDescriptorTest, WritesItsTypeFirstAndOnlyWhatIsSpecified)
{
    AxComponentDescriptor descriptor("engine", nullptr);
    EXPECT_EQ(descriptor.writtenText(), "(engine\n"
                                        "  (component-descriptor-type \"component-descriptor\")\n"
                                        "  (is-enabled true)\n"
                                        "  (create-component true))\n");
    std::string hook;
    descriptor.putData(hook, 1);
    EXPECT_EQ(hook, "\n    (component-descriptor-type \"component-descriptor\")");
}

TEST_F(AxComponentDescriptorTest, MarksInSomeSettersOnly)
{
    AxComponentDescriptor descriptor("engine", nullptr);
    descriptor.registry()->lookup("is-enabled")->setValueSpecified(false, false);
    descriptor.registry()->lookup("create-component")->setValueSpecified(false, false);
    descriptor.setComponentType("turbine");
    descriptor.setProcessStateRepositoryName("name");
    descriptor.setProcessStateRepositoryType("type");
    descriptor.setDebugActive(true);
    EXPECT_FALSE(descriptor.isDue());
    EXPECT_TRUE(descriptor.debugActive());
    EXPECT_EQ(descriptor.componentType(), "turbine");

    descriptor.setMinTickPeriod(1.0);
    descriptor.setMinTickPeriodVariance(2.0);
    descriptor.setTickPeriodUsesRealTime(true);
    descriptor.setIsEnabled(false);
    descriptor.setMinTaskVisualizationTickPeriod(3.0);
    descriptor.setCreateComponent(false);
    descriptor.setCreateOnRemoteObject(true);
    for (char const* keyword :
         {"min-tick-period", "min-tick-period-variance", "tick-period-uses-real-time", "is-enabled",
          "min-task-visualization-tick-period", "create-component", "create-on-remote-object"})
    {
        EXPECT_TRUE(isSpecified(descriptor, keyword)) << keyword;
    }
}

TEST_F(AxComponentDescriptorTest, CopiesValuesAndFlagsUnderTheSameName)
{
    AxComponentDescriptor source("engine", nullptr);
    source.setMinTickPeriod(0.5);
    source.setIsEnabled(false);
    source.setDebugActive(true);
    AxComponentDescriptor copy(source, nullptr);
    EXPECT_EQ(copy, source);
    EXPECT_EQ(copy.writtenText(), source.writtenText());
    EXPECT_EQ(copy.writtenText(true), source.writtenText(true));
    EXPECT_FALSE(isSpecified(copy, "min-tick-period-variance"));

    copy.setMinTickPeriod(0.75);
    EXPECT_FALSE(copy == source);
    copy = source;
    EXPECT_EQ(copy, source);
}

TEST_F(AxComponentDescriptorTest, ACloneIsWhatAssigningToANewOneMakes)
{
    using Change = void (*)(AxLaserDetectorDescriptor&);
    Change const changes[] = {
        [](AxLaserDetectorDescriptor&) {},
        [](AxLaserDetectorDescriptor& source) { source.setComponentType("a type of its own"); },
        [](AxLaserDetectorDescriptor& source)
        { readFrom(source, "(wing (component-descriptor-type \"laser-detector-descriptor\") (min-tick-period $a))"); },
        [](AxLaserDetectorDescriptor& source)
        { readFrom(source, "(wing (component-descriptor-type \"laser-detector-descriptor\") (feathers 2))"); },
        [](AxLaserDetectorDescriptor& source)
        { readFrom(source, "(wing (component-descriptor-type \"laser-detector-descriptor\") (is-enabled 7))"); },
        [](AxLaserDetectorDescriptor& source) { source.registry()->lookup("is-enabled")->setReadonly(true); },
        [](AxLaserDetectorDescriptor& source) { source.registry()->lookup("is-enabled")->addAlias("enabled"); },
        [](AxLaserDetectorDescriptor& source) { source.registry()->lookup("is-enabled")->setInherited(true); },
        [](AxLaserDetectorDescriptor& source) { source.registry()->createMember("AxRwReal", "own"); },
        [](AxLaserDetectorDescriptor& source) { source.setName("renamed"); },
        [](AxLaserDetectorDescriptor& source) { source.setInvalid(true); },
        [](AxLaserDetectorDescriptor& source) { source.setValueSpecified(true, false); }};
    for (Change const change : changes)
    {
        auto source = std::make_unique<AxLaserDetectorDescriptor>("wing", nullptr);
        change(*source);
        SCOPED_TRACE(source->writtenText(true));
        AxLaserDetectorDescriptor assigned(source->name(), nullptr);
        assigned.assign(*source);
        AxReaderWriterRegistry owner;
        std::unique_ptr<AxComponentDescriptor> const clone(source->clone(&owner));
        source.reset(); // its texts must not go with it
        AxComponentDescriptor const& copy = *clone;
        EXPECT_EQ(typeid(copy), typeid(assigned));
        EXPECT_EQ(clone->parentRegistry(), &owner);
        EXPECT_EQ(owner.lookup(assigned.name()), clone.get());
        EXPECT_EQ(clone->writtenText(), assigned.writtenText());
        EXPECT_EQ(clone->writtenText(true), assigned.writtenText(true));
        EXPECT_EQ(clone->keptItems(), assigned.keptItems());
        EXPECT_EQ(clone->invalid(), assigned.invalid());
        EXPECT_EQ(clone->registry()->localData(), assigned.registry()->localData());
        ASSERT_EQ(clone->registry()->size(), assigned.registry()->size());
        for (std::size_t i = 0; i < assigned.registry()->size(); ++i)
        {
            AxReaderWriter const& made = *clone->registry()->entry(i).member;
            AxReaderWriter const& wanted = *assigned.registry()->entry(i).member;
            EXPECT_EQ(made.name(), wanted.name());
            EXPECT_EQ(made.parentRegistry(), clone->registry());
            EXPECT_EQ(made.valueSpecified(), wanted.valueSpecified());
            EXPECT_EQ(made.inherited(), wanted.inherited());
            EXPECT_EQ(made.readonly(), wanted.readonly());
            EXPECT_EQ(made.aliases(), wanted.aliases());
            EXPECT_EQ(made.isVariableReference(), wanted.isVariableReference());
            EXPECT_GT(made.recordUpdateTime(), 0.0);
        }
        clone->reset();
        assigned.reset();
        EXPECT_EQ(clone->writtenText(true), assigned.writtenText(true));
    }
}

TEST_F(AxComponentDescriptorTest, MakesTheClassThatTheTextTells)
{
    char const* text = "(engine\n"
                       "  (component-descriptor-type \"actuator-component-descriptor\")\n"
                       "  (min-tick-period 0.5)\n"
                       "  (is-enabled false)\n"
                       "  (create-component true)\n"
                       "  (art-part-list\n"
                       "    (turret\n"
                       "      (part-type 4096)\n"
                       "      (offset 0.0 0.0 -1.6))\n"
                       "    (gun\n"
                       "      (attached-to \"turret\"))))\n";
    std::unique_ptr<AxComponentDescriptor> const made(create(text));
    auto* const actuator = dynamic_cast<AxActuatorComponentDescriptor*>(made.get());
    ASSERT_TRUE(actuator);
    EXPECT_EQ(made->name(), "engine");
    EXPECT_EQ(actuator->artPartDescriptorList().lookup("turret")->offset().z(), -1.6);
    EXPECT_EQ(made->writtenText(), text);
    std::unique_ptr<AxComponentDescriptor> const clone(made->clone(nullptr));
    EXPECT_EQ(clone->writtenText(), text);
    EXPECT_EQ(*clone, *made);
    EXPECT_EQ(warnings.text(), "");
}

TEST_F(AxComponentDescriptorTest, DropsItsFirstItemWhateverItIs)
{
    AxComponentDescriptor descriptor("", nullptr);
    readFrom(descriptor, "(engine (min-tick-period 1.0) (min-tick-period-variance 2.0))");
    EXPECT_EQ(descriptor.minTickPeriod(), -1.0);
    EXPECT_EQ(descriptor.minTickPeriodVariance(), 2.0);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].code, "type-item-missing");
    EXPECT_EQ(findings[0].column, 9U);
}

TEST_F(AxComponentDescriptorTest, ReportsAnUnknownTypeWithPlaceAndNearestName)
{
    EXPECT_EQ(create("(engine\n (component-descriptor-type \"componet-descriptor\"))"), nullptr);
    EXPECT_EQ(warnings.text(), "Can't create component descriptor of type componet-descriptor.  No creator found.\n");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].line, 2U);
    EXPECT_EQ(findings[0].column, 29U);
    EXPECT_EQ(findings[0].hint, "did you mean \"component-descriptor\"?");
}

TEST_F(AxComponentDescriptorTest, TakesAnyShapeWithoutATypeForAnUnknownType)
{
    for (char const* text : {"()", "engine", "(engine)", "(engine 1)", "(engine (x))", "(engine () (is-enabled true))"})
    {
        warnings.clear();
        EXPECT_EQ(create(text), nullptr) << text;
        EXPECT_EQ(warnings.text(), "Can't create component descriptor of type .  No creator found.\n") << text;
    }
}

TEST_F(AxComponentDescriptorTest, WarnsWithoutAFactory)
{
    AxComponentDescriptor::setFactory(nullptr);
    EXPECT_EQ(create("(engine (component-descriptor-type \"component-descriptor\"))"), nullptr);
    AxComponentDescriptor::addComponentDescriptorCreatorFcn("x", &AxComponentDescriptor::creator);
    EXPECT_EQ(warnings.text(), "Can't create component descriptor without a component descriptor factory.\n"
                               "Can't add component descriptor creator without a component descriptor factory.\n");
}

TEST_F(AxComponentDescriptorTest, AddsTypesToTheInstalledFactory)
{
    AxComponentDescriptor::addComponentDescriptorCreatorFcn("plug-in-descriptor", &AxComponentDescriptor::creator);
    std::unique_ptr<AxComponentDescriptor> const made(
        AxComponentDescriptor::createComponentDescriptor("plug-in-descriptor"));
    ASSERT_TRUE(made);
    EXPECT_TRUE(made->name().isNull());
    EXPECT_EQ(made->type(), "component-descriptor");
}
