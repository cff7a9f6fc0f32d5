#include "RecordFixture.h"

#include "AxActuatorComponentDescriptor.h"
#include "AxComponentSystemDefinition.h"
#include "AxMovingObjectParameters.h"
#include "AxZedStateRepositoryUserExtensionFactory.h"

#include <numbers>

namespace
{
class AxZedObjectParametersTest : public RecordFixture
{
};
using Record = AxZedObjectParameters;

/// Uses every place that a record's text can have.
constexpr char const* theFullText = R"((m1a1
  (parameter-type "zed-object-param")
  (variable-bindings
    (weight 57000.0))
  (bounding-geometry-type 2)
  (bounding-volume
    (min -4.0 -1.8 -2.4)
    (max 4.0 1.8 0.0))
  (formation 3)
  (default-appearance 4194304)
  (force 1)
  (category "tank")
  (is-organized true)
  (min-tick-period 0.1)
  (dr-algorithm 4)
  (navigation-parameters
    (clearance-radius 2.5)
    (avoid-feature-types "building" "river"))
  (dr-thresholds
    (translation 0.25))
  (radios
    (command-net
      (radio-type 7 1 225 1 1 0 0)
      (frequency 45000000.0)))
  (sensors
    (eye
      (component-descriptor-type "component-descriptor")
      (is-enabled true)
      (create-component true)
      (min-tick-period 0.5)))
  (connections
    (connect eye:detected gun:target-list))
  (mass $weight)
  (sensor-signatures ("radar" 12.0) ("visual" 1.0))
  (engagement-rules "hold-fire")
  (resources
    (real-resource
      (resource-name "fuel")
      (amount 1900.0)))
  (initial-sector-of-responsibility
    (sector-center 0.5)
    (sector-size 1.0))
  (auto-connections
    (auto-connection
      (output "detected-objects")
      (input "target-list")))
  (parameter-data
    (callsign AxRwString "Red 2"))
  (state-data
    (fuel-level AxRwReal 0.5))
  (publish-parameter-data true)
  (display-name "M1A1")
  (local-objects
    (task-manager "ground-task-manager"))
  (subordinate-objects
    (lead
      (object-type 1 1 1 225 1 1 3 0)
      (offset -50.0 50.0 0.0)))
  (remote-objects
    (net-interface "remote-interface")))
)";
} // namespace

TEST_F(AxZedObjectParametersTest, FreshRecordHasUnspecifiedDefaults)
{
    Record const record("m1", nullptr);
    EXPECT_FALSE(record.categorySpecified() || record.echelonLevelSpecified() || record.underFireTimeSpecified() ||
                 record.underFireDistanceSpecified() || record.appearanceSpecified());
    EXPECT_EQ(record.mass(), 5000.0);
    EXPECT_EQ(record.underFireTime(), 120.0);
    EXPECT_EQ(record.underFireDistance(), 1000.0);
    EXPECT_EQ(record.engagementRules(), "fire-at-will");
    EXPECT_EQ(record.initialSectorOfResponsibility().sectorCenter(), 0.0);
    EXPECT_EQ(record.initialSectorOfResponsibility().sectorSize(), std::numbers::pi / 2.0);
    EXPECT_EQ(record.boundingGeometryType(), AxSimBoundingGeometry::BoundingBox);
    EXPECT_EQ(record.deadReckoningAlgorithm(), AxDeadReckonDrmFPW);
    EXPECT_TRUE(record.taskedBySuperiorUponTaskComplete());
    EXPECT_EQ(record.boundingVolume(), nullptr);
    EXPECT_EQ(record.draft(), 0.0);
    EXPECT_EQ(record.subordinateObjects(), nullptr);
    EXPECT_EQ(record.writtenText(), "(m1\n  (parameter-type \"zed-object-param\")\n  (bounding-geometry-type 2))\n");
}

TEST_F(AxZedObjectParametersTest, MembersAreCountedAsTheyComeToLife)
{
    Record record("m1", nullptr);
    EXPECT_EQ(record.registry()->count(), 39);
    EXPECT_TRUE(record.init());
    EXPECT_EQ(record.registry()->count(), 43);
    EXPECT_EQ(record.registry()->comparedCount(), 39);
    ASSERT_TRUE(readFrom(record, "(m1 (parameter-type \"zed-object-param\"))"));
    EXPECT_EQ(record.registry()->count(), 44);
}

TEST_F(AxZedObjectParametersTest, InitAgainLosesNothingAndRegistersNothingTwice)
{
    Record record("m1", nullptr);
    ASSERT_TRUE(record.init());
    record.subordinateObjects()->add(AxZedSubObjectParameterEntry("lead", nullptr));
    ASSERT_TRUE(record.init() && record.createLocalSubComponentTypes());
    EXPECT_NE(record.subordinateObjects()->lookup("lead"), nullptr);
    EXPECT_EQ(record.registry()->count(), 43);
    EXPECT_EQ(record.localSubComponentTypes(), record.localZedSubComponentTypes());
}

TEST_F(AxZedObjectParametersTest, TypeItemAloneIsTheHooksText)
{
    std::string out;
    AxMovingObjectParameters("m1", nullptr).putData(out, 0);
    EXPECT_EQ(out, "\n  (parameter-type \"moving-object-param\")");
}

TEST_F(AxZedObjectParametersTest, TextComesBackAsItWas)
{
    RecordPtr const byCells = created(theFullText);
    ASSERT_TRUE(byCells);
    RecordPtr const byText = made("zed-object-param");
    ASSERT_TRUE(readFrom(*byText, theFullText));
    EXPECT_EQ(warnings.text(), "");
    std::string expected(theFullText);
    // Members are written in binding order.
    std::string const moved = "\n      (min-tick-period 0.5)";
    expected.erase(expected.find(moved), moved.size());
    expected.insert(expected.find("\n      (is-enabled true)"), moved);
    EXPECT_EQ(byCells->writtenText(), expected);
    EXPECT_EQ(byText->writtenText(), expected);
    EXPECT_TRUE(*byCells == *byText);
    EXPECT_EQ(byText->mass(), 57000.0);
    EXPECT_EQ(byText->findVariableBinding("weight"), "57000.0");
    EXPECT_EQ(byText->findVariableBinding("height"), "");
    EXPECT_EQ(byText->name(), "m1a1");

    RecordPtr const again = made("zed-object-param");
    ASSERT_TRUE(readFrom(*again, byText->writtenText(true)));
    EXPECT_EQ(again->writtenText(true), byText->writtenText(true));
    EXPECT_TRUE(*again == *byText);
}

TEST_F(AxZedObjectParametersTest, CloneEqualsItsSourceAndWritesItsText)
{
    RecordPtr const source = created(theFullText);
    ASSERT_TRUE(source);
    source->setObjectType(AxObjectType(1, 1, 225, 1, 1, 3, 0, 1));
    source->setParameterType("point-object-param");
    RecordPtr const clone(source->clone("m1a1", nullptr));
    ASSERT_TRUE(clone);
    EXPECT_TRUE(*clone == *source);
    EXPECT_EQ(clone->writtenText(), source->writtenText());
    EXPECT_EQ(clone->writtenText(true), source->writtenText(true));
    EXPECT_EQ(clone->objectType(), source->objectType());
    EXPECT_EQ(clone->parameterType(), "point-object-param");
    EXPECT_EQ(clone->registry()->count(), 44);
    EXPECT_NE(clone->stateRepositoryUserExtension(), source->stateRepositoryUserExtension());
    clone->setMass(1.0);
    EXPECT_FALSE(*clone == *source);
}

TEST_F(AxZedObjectParametersTest, EqualityLeavesOutTypesAndSubObjects)
{
    Record a("a", nullptr);
    Record b("b", nullptr);
    ASSERT_TRUE(a.init());
    a.setObjectType(AxObjectType(1, 1, 225, 1, 1, 3, 0));
    a.setParameterType("point-object-param");
    a.localSubComponentTypes()->setPlanManagerType("planner");
    EXPECT_TRUE(a == b);
    EXPECT_FALSE(a != b);
    b.setUiFilename("ui.xml");
    EXPECT_TRUE(a != b);
}

TEST_F(AxZedObjectParametersTest, TypeItemMayStandAnywhere)
{
    RecordPtr const record = created("(m1 (mass 3.0) (parameter-type \"moving-object-param\") (category \"x\"))");
    ASSERT_TRUE(record);
    EXPECT_EQ(record->type(), "moving-object-param");
    EXPECT_EQ(record->mass(), 3.0);
    EXPECT_EQ(record->category(), "x");
    EXPECT_TRUE(findings.empty());
}

TEST_F(AxZedObjectParametersTest, CreationFromAnyShapeNeverCrashes)
{
    struct Case
    {
        char const* text;
        char const* line;
    };
    for (Case const& test : {
             Case{"()", "Can't create parameters of type .  No creator found.\n"},
             Case{"12", "Can't create parameters of type .  No creator found.\n"},
             Case{"\"text\"", "Can't create parameters of type .  No creator found.\n"},
             Case{"(m1)", "Can't create parameters of type .  No creator found.\n"},
             Case{"(m1 5)", "Can't create parameters of type .  No creator found.\n"},
             Case{"(m1 (parameter-type))", "Can't create parameters of type .  No creator found.\n"},
             Case{"(m1 (mass 500))", "Can't create parameters of type 500.  No creator found.\n"},
             Case{"(m1 (parameter-type \"no-such\"))", "Can't create parameters of type no-such.  No creator found.\n"},
         })
    {
        warnings.clear();
        EXPECT_EQ(created(test.text), nullptr) << test.text;
        EXPECT_EQ(warnings.text(), test.line) << test.text;
    }
    EXPECT_NE(created("(m1 (kind zed-object-param))"), nullptr) << "whatever the head";
    EXPECT_NE(created("(\"m 1\" (\"parameter-type\" zed-object-param) 5 (7) () (mass))"), nullptr);
}

TEST_F(AxZedObjectParametersTest, UnknownTypeIsFoundWithItsPlaceAndNearestName)
{
    EXPECT_EQ(created("(m1\n  (parameter-type \"moving-object-parm\"))"), nullptr);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].code, "unknown-type");
    EXPECT_EQ(findings[0].line, 2U);
    EXPECT_EQ(findings[0].column, 19U);
    EXPECT_EQ(findings[0].hint, "did you mean \"moving-object-param\"?");
}

TEST_F(AxZedObjectParametersTest, WithoutFactoryNothingIsCreated)
{
    Record::setFactory(nullptr);
    EXPECT_EQ(Record::createParameters("zed-object-param"), nullptr);
    EXPECT_EQ(created("(m1 (parameter-type \"zed-object-param\"))"), nullptr);
    Record::addParameterCreatorFcn("x", &Record::creator);
    EXPECT_EQ(warnings.text(), "Can't create parameters without a parameter factory.\n"
                               "Can't create parameters without a parameter factory.\n"
                               "Can't add parameter creator without a parameter factory.\n");
}

TEST_F(AxZedObjectParametersTest, TakesObjectAndMatchTypeItems)
{
    for (auto* read : {+[](AxReaderWriter&rw, std::string_view text) { readFrom(rw, text); },
                       +[](AxReaderWriter&rw, std::string_view text) { readCellsInto(rw, text); }})
    {
        Record record("m1", nullptr);
        read(record, "(m1 (object-type 1 1 1 225 1 1 3 0) (mass 2.0) (match-type 1:1:225:-1:-1:-1:-1))");
        EXPECT_EQ(record.objectType(), AxObjectType(1, 1, 225, 1, 1, 3, 0, 1));
        EXPECT_EQ(record.matchType(), AxObjectType(1, 1, 225, -1, -1, -1, -1));
        EXPECT_EQ(record.mass(), 2.0);
        EXPECT_TRUE(findings.empty());
    }
    for (auto* read : {+[](AxReaderWriter&rw, std::string_view text) { readFrom(rw, text); },
                       +[](AxReaderWriter&rw, std::string_view text) { readCellsInto(rw, text); }})
    {
        Record record("m1", nullptr);
        findings.clear();
        read(record, "(m1 (object-type 1 1 1 1 1 1 1) (match-type 2 1 1 1 1 1 1)\n (object-type 3 1 1 1 1 1 1)\n"
                     " (user-extension (x 1))\n (match-type 4 1 1 1 1 1 1)\n (user-extension (y 2)))");
        EXPECT_EQ(record.objectType(), AxObjectType(3, 1, 1, 1, 1, 1, 1));
        EXPECT_EQ(record.matchType(), AxObjectType(4, 1, 1, 1, 1, 1, 1));
        std::string places;
        for (AxDiagnostic const& finding : findings)
        {
            places += finding.code == "repeated-keyword" ? std::to_string(finding.line) : std::string();
        }
        EXPECT_EQ(places, "245");
    }
    findings.clear();
    Record faulty("m1", nullptr);
    readFrom(faulty, "(m1 (object-type 1 2))");
    EXPECT_TRUE(faulty.objectType().isNull());
    EXPECT_NE(faulty.writtenText().find("(object-type 1 2)"), std::string::npos);
}

TEST_F(AxZedObjectParametersTest, OwnBindingsStandInFrontOfTheCallers)
{
    AxRwVariableBindings callers;
    callers.set("weight", cellsOf("(1.0)"));
    callers.set("label", cellsOf("(\"caller\")"));
    std::string_view const text = "(m1 (parameter-type \"zed-object-param\") (variable-bindings (weight 2.0))"
                                  " (variable-bindings (weight 3.0) (size \"big\"))"
                                  " (category \"$(size) $(label)\") (mass $weight))";
    for (bool byCells : {false, true})
    {
        Record record("m1", nullptr);
        byCells ? readCellsInto(record, text, {&callers}) : static_cast<void>(readFrom(record, text, {&callers}));
        EXPECT_EQ(record.mass(), 2.0);
        EXPECT_EQ(record.category(), "big caller");
        EXPECT_EQ(record.variableBindingsFromLoad().size(), 2U);
        EXPECT_EQ(record.findVariableBinding("weight"), "2.0");
        readFrom(record, "(m1 (parameter-type \"zed-object-param\"))");
        EXPECT_TRUE(record.variableBindingsFromLoad().empty());
    }
}

TEST_F(AxZedObjectParametersTest, BindingsInPlaceOfTheNameAreBindings)
{
    Record record("", nullptr);
    readFrom(record, "((variable-bindings (m 5.0)) (parameter-type \"zed-object-param\") (mass $m))");
    EXPECT_EQ(record.mass(), 5.0);
    Record again("", nullptr);
    readFrom(again, record.writtenText());
    EXPECT_EQ(again.mass(), 5.0);
    EXPECT_EQ(again.writtenText(), record.writtenText());
}

TEST_F(AxZedObjectParametersTest, OwnBindingsCountForWhatStandsBeforeThem)
{
    AxRwVariableBindings callers;
    callers.set("weight", cellsOf("(1.0)"));
    std::string_view const text = "(m1 (parameter-type \"zed-object-param\") (mass $weight)\n"
                                  " (dr-thresholds (translation $reach)) (mas 1.0)\n"
                                  " (variable-bindings (weight 2.0) (reach 3.0)) (under-fire-time $reach))";
    for (bool byCells : {false, true})
    {
        Record record("m1", nullptr);
        byCells ? readCellsInto(record, text, {&callers}) : static_cast<void>(readFrom(record, text, {&callers}));
        EXPECT_EQ(record.mass(), 2.0);
        EXPECT_EQ(record.deadReckoningThresholds().translationThreshold(), 3.0);
        EXPECT_EQ(record.underFireTime(), 3.0);
        EXPECT_EQ(record.variableBindingsFromLoad().size(), 1U);
        ASSERT_FALSE(findings.empty());
        EXPECT_EQ(findings.back().code, "unknown-keyword");
        EXPECT_EQ(findings.back().line, 2U);
    }
}

TEST_F(AxZedObjectParametersTest, KeepsOtherItemsAfterUnknownKeyword)
{
    Record record("m1", nullptr);
    readFrom(record, "(m1 (parameter-type \"zed-object-param\") (mas 1.0) (mass \"heavy\") (category \"tank\"))");
    EXPECT_EQ(record.category(), "tank");
    EXPECT_EQ(record.mass(), 5000.0);
    ASSERT_EQ(findings.size(), 2U);
    EXPECT_EQ(findings[0].hint, "did you mean \"mass\"?");
    EXPECT_EQ(findings[1].code, "wrong-kind");
    std::string const text = record.writtenText();
    EXPECT_NE(text.find("(mas 1.0)"), std::string::npos);
    EXPECT_NE(text.find("(mass \"heavy\")"), std::string::npos);
}

TEST_F(AxZedObjectParametersTest, DraftIsTheLargestZOfTheBox)
{
    Record record("m1", nullptr);
    record.setBoundingVolume({-40.0, -6.0, -15.0}, {40.0, 6.0, 5.5});
    EXPECT_DOUBLE_EQ(record.draft(), 5.5);
    Record read("m1", nullptr);
    readFrom(read, "(m1 (bounding-volume (max 1.0 1.0 2.0)))");
    ASSERT_NE(read.boundingVolume(), nullptr);
    EXPECT_DOUBLE_EQ(read.draft(), 2.0);
}

TEST_F(AxZedObjectParametersTest, SettersOfRecordsMarkEverythingBelow)
{
    Record record("m1", nullptr);
    record.setDeadReckoningThresholds(AxRwDeadReckonThresholds("x", nullptr));
    record.setNavigationParameters(AxRwNavigationParameters("x", nullptr));
    std::string const text = record.writtenText();
    EXPECT_NE(text.find("(dr-thresholds\n    (translation 1.0)\n    (rotation 3.0)\n    (aggregate-dimension 0.05))"),
              std::string::npos);
    EXPECT_NE(text.find("(max-step-height 0.5)"), std::string::npos);
}

TEST_F(AxZedObjectParametersTest, ReportsNamesThatAreBothParameterAndStateData)
{
    Record record("m1", nullptr);
    readFrom(record, "(m1 (parameter-data (a AxRwInt 1) (b AxRwInt 2)) (state-data (b AxRwInt 3)))");
    EXPECT_EQ(warnings.text(), "m1 has duplicate parameter and state data named: b.  Only state data will be published "
                               "on the network by that name.\n");
    ASSERT_NE(record.findProperty("b"), nullptr);
    EXPECT_EQ(record.findProperty("b"), record.parameterData().find("b"));
    EXPECT_EQ(record.findProperty("c"), nullptr);
}

namespace
{
class PointExtension : public AxZedStateRepositoryUserExtension
{
public:
    PointExtension() : AxZedStateRepositoryUserExtension(AxSymbolString(), nullptr) {}
    AxString type() const override { return "point-extension"; }
    AxZedStateRepositoryUserExtension* clone(AxSymbolString name, AxReaderWriterRegistry* parent) const override
    {
        auto* const copy = new PointExtension;
        copy->setName(name.string());
        if (parent)
        {
            parent->addEntry(name, copy);
        }
        copy->assign(*this);
        return copy;
    }
    AxRwReal points{{"points", "", ""}, registry()};
};

/// Installs a user-extension factory, and the given one again at the end.
class ExtensionFactoryScope
{
public:
    explicit ExtensionFactoryScope(AxZedStateRepositoryUserExtensionFactory* factory)
        : myPrevious(AxZedStateRepositoryUserExtension::factory())
    {
        AxZedStateRepositoryUserExtension::setFactory(factory);
    }
    ~ExtensionFactoryScope() { AxZedStateRepositoryUserExtension::setFactory(myPrevious); }

private:
    AxZedStateRepositoryUserExtensionFactory* myPrevious;
};
} // namespace

TEST_F(AxZedObjectParametersTest, ExtensionReadsItsItemOnceItExists)
{
    AxZedStateRepositoryUserExtensionFactory extensions;
    extensions.addCreator("point-extension",
                          [](AxString const&) -> AxZedStateRepositoryUserExtension* { return new PointExtension; });
    ExtensionFactoryScope const scope(&extensions);
    for (bool byCells : {false, true})
    {
        std::string_view const text = "(m1 (parameter-type \"zed-object-param\") (user-extension (points 7.0))"
                                      " (state-repository-extension-type \"point-extension\"))";
        Record record("m1", nullptr);
        byCells ? readCellsInto(record, text) : static_cast<void>(readFrom(record, text));
        auto const* const extension = dynamic_cast<PointExtension*>(record.stateRepositoryUserExtension());
        ASSERT_TRUE(extension);
        EXPECT_EQ(extension->points.value(), 7.0);
        RecordPtr const clone(record.clone("m1", nullptr));
        EXPECT_EQ(clone->writtenText(), record.writtenText());
        EXPECT_NE(clone->writtenText().find("(user-extension\n    (points 7.0)))"), std::string::npos);
        EXPECT_TRUE(findings.empty());
    }
}

TEST_F(AxZedObjectParametersTest, BaseExtensionIsSilentOnTheWarningStreamAndNeverWritten)
{
    AxSinkScope info(AxInfo);
    RecordPtr const record = created("(m1 (parameter-type \"zed-object-param\"))");
    EXPECT_EQ(info.text(), "Creating myStateRepositoryUserExtension of base type AxZedStateRepositoryUserExtension\n");
    EXPECT_EQ(warnings.text(), "");
    EXPECT_EQ(record->writtenText(true).find("user-extension\n"), std::string::npos);
    EXPECT_EQ(record->writtenText(true).find("(user-extension"), std::string::npos);
}

TEST_F(AxZedObjectParametersTest, FailedExtensionsAreToldAndTheirItemsKept)
{
    AxZedStateRepositoryUserExtensionFactory extensions;
    extensions.addCreator("none", [](AxString const&) -> AxZedStateRepositoryUserExtension* { return nullptr; });
    struct Case
    {
        char const* type;
        AxZedStateRepositoryUserExtensionFactory* factory;
        char const* cause;
    };
    for (Case const& test : {Case{"", &extensions, "No state-repository-extension-type parameter specified"},
                             Case{"none", nullptr, "AxZedStateRepositoryUserExtension factory not specified"},
                             Case{"none", &extensions, "Cannot create state repository user extension"},
                             Case{"other", &extensions, "Cannot create state repository user extension other"}})
    {
        ExtensionFactoryScope const scope(test.factory);
        warnings.clear();
        Record record("m1", nullptr);
        readFrom(record, "(m1 (user-extension (points 7.0)) (state-repository-extension-type \"" +
                             std::string(test.type) + "\"))");
        EXPECT_EQ(warnings.text(),
                  "AxZedObjectParameters::getSelf() : Error creating myStateRepositoryUserExtension\n" +
                      std::string(test.cause) + '\n');
        EXPECT_EQ(record.stateRepositoryUserExtension(), nullptr);
        EXPECT_NE(record.writtenText().find("(user-extension (points 7.0))"), std::string::npos);
    }
}

TEST_F(AxZedObjectParametersTest, RefusedSubComponentTypesFailInit)
{
    struct Refusing : AxObjectRecordOf<Refusing, AxZedObjectParameters, "refusing">
    {
        using AxObjectRecordOf::AxObjectRecordOf;
        bool createLocalSubComponentTypes() override { return takesLocal && Record::createLocalSubComponentTypes(); }
        bool createRemoteSubComponentTypes() override { return false; }
        bool takesLocal = false;
    };
    Refusing record("r", nullptr);
    EXPECT_FALSE(record.init());
    record.takesLocal = true;
    EXPECT_FALSE(record.init());
    EXPECT_EQ(warnings.text(),
              "Couldn't create local composed object types\nCouldn't create remote composed object types\n");
    EXPECT_EQ(record.type(), "refusing");
}

TEST_F(AxZedObjectParametersTest, TaskRulesAreCopiedWithTheirFileOrInline)
{
    Record record("m1", nullptr);
    record.taskExecutionRules().setAllTasksExclusive(true);
    Record copy("m2", nullptr);
    copy = record;
    EXPECT_TRUE(copy.taskExecutionRules().allTasksExclusive());
    EXPECT_EQ(copy.writtenText(), "(m2\n  (parameter-type \"zed-object-param\")\n  (bounding-geometry-type 2)\n"
                                  "  (task-execution-rules\n    (all-tasks-exclusive true)))\n");
    Record again("m3", nullptr);
    readFrom(again, copy.writtenText());
    EXPECT_TRUE(again.taskExecutionRules().allTasksExclusive());
    copy.setTaskExecutionRulesFilename("rules.ter");
    EXPECT_EQ(copy.taskExecutionRulesFilename(), AxFilename("rules.ter"));
    EXPECT_NE(copy.writtenText().find("(task-execution-rules \"rules.ter\")"), std::string::npos);
    EXPECT_EQ(copy.writtenText().find("all-tasks-exclusive"), std::string::npos);
}

namespace
{
AxComponentSystemDescriptor& addSystem(Record& record, char const* name, std::string const& definition)
{
    auto* const system = new AxComponentSystemDescriptor(name, nullptr);
    readFrom(*system->systemDefinition(), "(system-definition " + definition + ")");
    record.systemDescriptorList().addToEnd(system);
    return *system;
}

std::string connectionsOf(Record const& record)
{
    std::string text;
    for (AxConnectionDescriptor const* connection : record.connectionDescriptorList())
    {
        text += connection->source().string() + '>' + connection->destination().string() + ' ';
    }
    return text;
}
} // namespace

TEST_F(AxZedObjectParametersTest, AutomaticRulesWireEachFittingPairOnce)
{
    Record record("m1", nullptr);
    addSystem(record, "radar",
              "(connections (connect r:out system:tracks)) (meta-data (system-categories \"sensor\"))");
    addSystem(record, "eye", "(connections (connect e:out system:tracks))");
    addSystem(record, "gun", "(connections (connect system:targets g:in)) (meta-data (system-categories \"weapon\"))");
    addSystem(record, "relay", "(connections (connect system:targets x:in) (connect x:out system:tracks))");
    readFrom(record.autoConnections(), "(auto-connections"
                                       " (auto-connection (output \"tracks\") (input \"targets\")"
                                       "  (output-category \"sensor\"))"
                                       " (auto-connection (output \"tracks\") (input \"targets\")"
                                       "  (input-category \"weapon\"))"
                                       " (auto-connection (output \"none\") (input \"targets\")))");
    record.connectSystems();
    std::string const expected = "radar:tracks>gun:targets radar:tracks>relay:targets eye:tracks>gun:targets "
                                 "relay:tracks>gun:targets ";
    EXPECT_EQ(connectionsOf(record), expected);
    record.connectSystems();
    EXPECT_EQ(connectionsOf(record), expected);
    EXPECT_FALSE(record.connectionDescriptorList().valueSpecified());
}

TEST_F(AxZedObjectParametersTest, ArtPartListHoldsThePartsOfAllSystems)
{
    Record record("m1", nullptr);
    addSystem(record, "turret",
              "(actuators (drive (component-descriptor-type \"actuator-component-descriptor\")"
              " (art-part-list (turret (part-type 4096)) (gun (part-type 4416)))))"
              " (systems (hatch))");
    ASSERT_EQ(record.completeArtPartList().size(), 2U);
    EXPECT_EQ(record.completeArtPartList().front()->partType(), 4096);
    record.systemDescriptorList().removeAndDeleteAll();
    EXPECT_TRUE(record.completeArtPartList().empty());
}
