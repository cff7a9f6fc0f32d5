#include "RecordFixture.h"

#include "AxMovingObjectParameters.h"

namespace
{
class AxZedObjectParametersInheritTest : public RecordFixture
{
protected:
    RecordPtr read(char const* type, std::string const& items)
    {
        RecordPtr record = created("(m (parameter-type \"" + std::string(type) + "\") " + items + ")");
        EXPECT_TRUE(record);
        return record;
    }
};
constexpr char const* theBase = "zed-object-param";
constexpr char const* theMoving = "moving-object-param";
} // namespace

TEST_F(AxZedObjectParametersInheritTest, TakesOnlyWhatWasNotSpecifiedHereButThere)
{
    RecordPtr const parent = read(theMoving, "(category \"vehicle\") (mass 9.0) (max-speed 22.0)");
    RecordPtr const child = read(theMoving, "(mass 7.0)");
    auto& moving = static_cast<AxMovingObjectParameters&>(*child);
    child->inheritValues(parent.get());
    EXPECT_EQ(child->category(), "vehicle");
    EXPECT_EQ(child->mass(), 7.0);
    EXPECT_EQ(moving.maxSpeed(), 22.0);
    EXPECT_FALSE(child->categorySpecified());
    EXPECT_EQ(child->writtenText(), read(theMoving, "(mass 7.0)")->writtenText());
}

TEST_F(AxZedObjectParametersInheritTest, AnUnreadableValueIsStillWrittenUntilOneIsGiven)
{
    RecordPtr const parent = read(theBase, "(mass 9.0)");
    RecordPtr const child = read(theBase, "(mass heavy)");
    child->inheritValues(parent.get());
    EXPECT_EQ(child->mass(), 9.0);
    EXPECT_NE(child->writtenText().find("(mass heavy)"), std::string::npos) << child->writtenText();
    child->setMass(7.0);
    EXPECT_EQ(child->writtenText(), read(theBase, "(mass 7.0)")->writtenText());
}

TEST_F(AxZedObjectParametersInheritTest, DefaultsOfAnotherClassAreNotTaken)
{
    struct Slow : AxObjectRecordOf<Slow, AxMovingObjectParameters, "slow-param">
    {
        Slow(AxSymbolString name, AxReaderWriterRegistry* parent, AxEnvironmentPtr const& env = {},
             AxEnvValuePtr const* node = nullptr)
            : AxObjectRecordOf(name, parent, env, node)
        {
            setMaxSpeed(2.0);
            registry()->lookup("max-speed")->setValueSpecified(false, false);
        }
    };
    Slow slow("s", nullptr);
    slow.inheritValues(read(theMoving, "").get());
    EXPECT_EQ(slow.maxSpeed(), 2.0);
    slow.inheritValues(read(theMoving, "(max-speed 3.0)").get());
    EXPECT_EQ(slow.maxSpeed(), 3.0);
}

TEST_F(AxZedObjectParametersInheritTest, ChainsPassValuesOn)
{
    RecordPtr const first = read(theBase, "(category \"thing\") (bounding-volume (min 0.0 0.0 0.0) (max 1.0 2.0 3.0))");
    RecordPtr const second = read(theBase, "(mass 2.0)");
    RecordPtr const third = read(theBase, "");
    second->inheritValues(first.get());
    third->inheritValues(second.get());
    EXPECT_EQ(third->category(), "thing");
    EXPECT_EQ(third->mass(), 2.0);
    ASSERT_NE(third->boundingVolume(), nullptr);
    EXPECT_EQ(third->boundingVolume()->max(), AxVector64(1.0, 2.0, 3.0));
    RecordPtr const copy(third->clone("m", nullptr));
    RecordPtr const fourth = read(theBase, "");
    fourth->inheritValues(copy.get());
    EXPECT_EQ(fourth->category(), "thing") << "a copy knows what was inherited";
    EXPECT_EQ(fourth->writtenText(), read(theBase, "")->writtenText());
    third->setCategory("own");
    EXPECT_TRUE(third->categorySpecified());
}

TEST_F(AxZedObjectParametersInheritTest, VariablesStayBehindAndTheirValuesAreTaken)
{
    RecordPtr const parent = read(theBase, "(variable-bindings (m 7.0) (name \"tank\") (low -1.0 -2.0 -3.0)) (mass $m)"
                                           " (category \"$(name)s\") (dr-thresholds (translation $m))"
                                           " (bounding-volume (min $low) (max 1.0 2.0 3.0))");
    RecordPtr const child = read(theBase, "");
    child->inheritValues(parent.get());
    EXPECT_EQ(child->mass(), 7.0);
    EXPECT_EQ(child->category(), "tanks");
    EXPECT_EQ(child->deadReckoningThresholds().translationThreshold(), 7.0);
    ASSERT_NE(child->boundingVolume(), nullptr);
    EXPECT_EQ(child->boundingVolume()->min(), AxVector64(-1.0, -2.0, -3.0));
    EXPECT_EQ(child->writtenText(), read(theBase, "")->writtenText());
    RecordPtr const grandchild = read(theBase, "");
    grandchild->inheritValues(child.get());
    EXPECT_EQ(grandchild->mass(), 7.0);
}

TEST_F(AxZedObjectParametersInheritTest, NestedRecordsAreWalkedAndListsTakenWhole)
{
    RecordPtr const parent = read(theBase, "(dr-thresholds (translation 5.0) (rotation 6.0)) (radios (r1) (r2))"
                                           " (connections (connect a b)) (parameter-data (x AxRwInt 1))"
                                           " (local-objects (plan-manager \"p\"))");
    RecordPtr const child = read(theBase, "(dr-thresholds (translation 1.5)) (radios (r3)) (connections)");
    child->inheritValues(parent.get());
    EXPECT_EQ(child->deadReckoningThresholds().translationThreshold(), 1.5);
    EXPECT_EQ(child->deadReckoningThresholds().rotationThreshold(), 6.0);
    EXPECT_EQ(child->radioDescriptorList().count(), 1);
    EXPECT_EQ(child->connectionDescriptorList().count(), 0) << "explicitly empty";
    EXPECT_NE(child->parameterData().find("x"), nullptr);
    EXPECT_NE(child->parameterData().find("x"), parent->parameterData().find("x"));
    EXPECT_EQ(child->localSubComponentTypes()->planManagerType(), "p");
}

TEST_F(AxZedObjectParametersInheritTest, SomeThingsAreNeverInherited)
{
    RecordPtr const parent = read(theBase, "(display-name \"parent\") (display-description \"text\")"
                                           " (bounding-geometry-type 1) (variable-bindings (a 1))"
                                           " (object-type 1 1 1 225 1 1 3 0)");
    RecordPtr const child = read(theBase, "");
    child->inheritValues(parent.get());
    EXPECT_EQ(child->displayName(), "");
    EXPECT_EQ(child->displayDescription(), "text");
    EXPECT_EQ(child->boundingGeometryType(), AxSimBoundingGeometry::BoundingBox) << "specified by its constructor";
    EXPECT_TRUE(child->objectType().isNull());
    EXPECT_TRUE(child->variableBindingsFromLoad().empty());
    child->inheritValues(nullptr);
    child->inheritValues(child.get());
    child->inheritValuesFromThisType(nullptr);
}

TEST_F(AxZedObjectParametersInheritTest, TaskRulesGoWithTheirFileName)
{
    RecordPtr const parent = read(theBase, "(task-execution-rules (all-tasks-exclusive true))");
    RecordPtr const child = read(theBase, "");
    child->inheritValues(parent.get());
    EXPECT_TRUE(child->taskExecutionRules().allTasksExclusive());
    RecordPtr const other = read(theBase, "");
    other->taskExecutionRules().setAllTasksExclusive(false);
    other->inheritValues(parent.get());
    EXPECT_FALSE(other->taskExecutionRules().allTasksExclusive());
}

TEST_F(AxZedObjectParametersInheritTest, ThisTypeTakesDefaultsTooButOnlyFromTheSameClass)
{
    AxMovingObjectParameters source("a", nullptr);
    source.setMass(1.0);
    source.registry()->lookup("mass")->setValueSpecified(false, false);
    AxMovingObjectParameters same("b", nullptr);
    AxZedObjectParameters other("c", nullptr);
    same.inheritValues(&source);
    EXPECT_EQ(same.mass(), 5000.0);
    same.inheritValuesFromThisType(&source);
    EXPECT_EQ(same.mass(), 1.0);
    other.inheritValuesFromThisType(&source);
    EXPECT_EQ(other.mass(), 5000.0);
}
