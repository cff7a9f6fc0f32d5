#include "AxModelSet.h"
#include "AxSimulationObjectAggregateState.h"
#include "AxSimulationObjectEntityState.h"
#include "AxSimulationObjectEnvironmentalState.h"
#include "AxSimulationObjectGroupModelSetEntry.h"
#include "DatabaseFixture.h"

namespace
{
using Group = AxSimulationObjectGroupModelSetEntry;

class AxSimulationObjectGroupTest : public DatabaseFixture
{
protected:
    static constexpr char const* theHead = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n";

    AxFilename patrol() const
    {
        return put("patrol.sog",
                   theHead + std::string("<!-- morning -->\n<simulationObjectGroup name=\"patrol\" label=\"Patrol\" "
                                         "group-description=\"two tanks\">\n"
                                         "  <objectType name=\"object-type\" value=\"5:0:0:0:0:0:0:4\"/>\n"
                                         "  <AxSimulationObjectEntityState name=\"lead\" label=\"Red 1\" force=\"1\" "
                                         "colour=\"sand\">\n"
                                         "    <vector name=\"location\" value=\"1.0 2.0 0.0\"/>\n"
                                         "  </AxSimulationObjectEntityState>\n"
                                         "  <!-- later -->\n"
                                         "  <AxSimulationObjectEntitState name=\"wing\" label=\"Red 2\"/>\n"
                                         "</simulationObjectGroup>\n"));
    }

    Group group{"", nullptr};
};
} // namespace

TEST_F(AxSimulationObjectGroupTest, AllStatesComeBackFromTheirFile)
{
    Group made("patrol", nullptr);
    made.setLabel("Patrol");
    made.setAdditionalInformation("a \"quoted\" word");
    made.setCreationFlags(3);
    AxSimulationObjectEntityState lead("lead", nullptr);
    lead.setObjectType(tank);
    lead.setSpeed(12.5);
    lead.setAppearance(0x80000000U);
    lead.setLocation({1.0, 2.0, 3.0});
    lead.setForce(AxForceType(2));
    made.addSimulatonObject(lead);
    AxSimulationObjectAggregateState unit("unit", nullptr);
    unit.setFormationType("wedge");
    unit.setAggregated(true);
    made.addSimulatonObject(unit);
    AxSimulationObjectEnvironmentalState smoke("smoke", nullptr);
    smoke.setPoints({{0.0, 0.0, 0.0}, {5.0, 0.5, -1.0}});
    made.addSimulatonObject(smoke);
    made.addSimulatonObject(AxSimulationObjectBaseState("thing", nullptr));

    EXPECT_FALSE(made.save());
    EXPECT_NE(warned().find("has no file"), std::string::npos);
    ASSERT_TRUE(made.save(AxFilename(path("patrol.sog"))));
    ASSERT_TRUE(group.load(made.filename()));
    EXPECT_TRUE(group.equals(made));
    ASSERT_EQ(group.simulationObjects().size(), 4U);
    auto const* const back = dynamic_cast<AxSimulationObjectEnvironmentalState*>(group.simulationObjects()[2]);
    ASSERT_TRUE(back);
    EXPECT_EQ(back->points().count(), 2);
    EXPECT_STREQ(back->xmlType(), AxSimulationObjectEnvironmentalState::theXmlType());
    EXPECT_EQ(warned(), "");

    std::string const text = get("patrol.sog");
    EXPECT_EQ(text.find("filename"), std::string::npos);
    ASSERT_TRUE(group.save());
    EXPECT_EQ(get("patrol.sog"), text);
    group.clearSimulationObjects();
    EXPECT_FALSE(group.equals(made));
}

TEST_F(AxSimulationObjectGroupTest, UnknownStatesAreToldInOneLineAndKept)
{
    AxFilename const file = patrol();
    ASSERT_TRUE(group.load(file));
    EXPECT_EQ(warned(), path("patrol.sog") +
                            ":5:70: warning: unknown keyword \"colour\" in lead "
                            "(AxSimulationObjectEntityState) [unknown-keyword]\n" +
                            path("patrol.sog") +
                            ":9:3: warning: unknown simulation object state "
                            "\"AxSimulationObjectEntitState\"; did you mean "
                            "\"AxSimulationObjectEntityState\"? [unknown-state]\n");
    ASSERT_EQ(group.simulationObjects().size(), 1U);
    EXPECT_EQ(group.simulationObjects()[0]->location(), AxVector64(1.0, 2.0, 0.0));
    EXPECT_EQ(group.objectType().string(), "5:0:0:0:0:0:0:4");
    EXPECT_EQ(group.groupDescription(), "two tanks");

    std::string const before = get("patrol.sog");
    std::unique_ptr<Group> const clone(group.clone());
    EXPECT_TRUE(clone->equals(group));
    ASSERT_TRUE(group.save());
    EXPECT_EQ(get("patrol.sog"), before);
    ASSERT_TRUE(clone->save(AxFilename(path("copy.sog"))));
    EXPECT_EQ(get("copy.sog"), before);
}

TEST_F(AxSimulationObjectGroupTest, FilesThatAreNoGroupChangeNothing)
{
    ASSERT_TRUE(group.load(patrol()));
    warned();
    for (char const* text : {"<simulationObjectGroup>", "<entities/>", ""})
    {
        EXPECT_FALSE(group.load(put("bad.sog", text))) << text;
        std::string const lines = warned();
        EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 1) << lines;
        EXPECT_EQ(lines.find(path("bad.sog")), 0U) << lines;
    }
    EXPECT_FALSE(group.load(AxFilename(path("none.sog"))));
    EXPECT_EQ(group.label(), "Patrol");
    EXPECT_EQ(group.simulationObjects().size(), 1U);
}

TEST_F(AxSimulationObjectGroupTest, AModelSetNamesTheFileWhoseObjectsAreReadOnDemand)
{
    patrol();
    AxModelSet models("model-set", nullptr);
    ASSERT_TRUE(models.load(
        put("all.models", "(model-set (simulation-object-group (label \"Dawn\") (filename \"patrol.sog\")))")));
    Group* const named = models.findSimulationObjectGroup("Dawn");
    ASSERT_TRUE(named);
    EXPECT_TRUE(named->simulationObjects().empty());
    ASSERT_TRUE(named->readAllSimulationObject());
    EXPECT_EQ(named->simulationObjects().size(), 1U);
    EXPECT_EQ(named->label(), "Dawn");
    EXPECT_EQ(named->filename(), AxFilename("patrol.sog"));
}

TEST_F(AxSimulationObjectGroupTest, ADirectoryGivesItsGroupsInOrder)
{
    put("groups/b.sog", "<simulationObjectGroup label=\"B\"/>");
    put("groups/a.sog", "<simulationObjectGroup label=\"A\"/>");
    put("groups/c.sog", "<wrong/>");
    put("groups/d.txt", "no group");
    put("groups/below/e.sog", "<simulationObjectGroup label=\"E\"/>");
    AxModelSet models("model-set", nullptr);
    EXPECT_FALSE(models.loadSimulationObjectGroupFiles(AxFilename(path("groups")))) << "one of them is none";
    ASSERT_EQ(models.count(), 2);
    EXPECT_EQ(models.objectTypeFor("A").string(), "5:0:0:0:0:0:0:1");
    EXPECT_EQ(models.objectTypeFor("B").string(), "5:0:0:0:0:0:0:2");
    warned();
    EXPECT_FALSE(models.loadSimulationObjectGroupFiles(AxFilename(path("none"))));
    EXPECT_EQ(warned(), path("none") + ": error: cannot be read as a directory: No such file or directory "
                                       "[unreadable-directory]\n");
}

TEST_F(AxSimulationObjectGroupTest, SavedToAnotherFileItStaysThere)
{
    put("sets/patrol.sog", "<simulationObjectGroup label=\"Patrol\"/>\n");
    AxModelSet models("model-set", nullptr);
    ASSERT_TRUE(
        models.load(put("sets/a.models", "(model-set (simulation-object-group (label \"Patrol\") (object-type 5 0 "
                                         "0 0 0 0 0 1) (filename \"patrol.sog\")))\n")));
    Group* const ours = models.findSimulationObjectGroup("Patrol");
    ASSERT_TRUE(ours && ours->readAllSimulationObject());
    boost::filesystem::path const before = boost::filesystem::current_path();
    boost::filesystem::current_path(directory());
    EXPECT_TRUE(ours->save(AxFilename("patrol.sog")));
    std::string const old = get("sets/patrol.sog");
    ours->setGroupDescription("at dawn");
    EXPECT_TRUE(ours->save());
    boost::filesystem::current_path(before);
    EXPECT_EQ(get("sets/patrol.sog"), old);
    EXPECT_NE(get("patrol.sog").find("at dawn"), std::string::npos);
}
