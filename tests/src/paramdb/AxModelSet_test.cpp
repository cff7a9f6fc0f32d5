#include "AxModelSet.h"

#include "AxSimulationObjectGroupModelSetEntry.h"
#include "AxZedXmlUtils.h"
#include "DatabaseFixture.h"

#include <algorithm>
#include <random>
#include <set>

namespace
{
using Group = AxSimulationObjectGroupModelSetEntry;

class AxModelSetTest : public DatabaseFixture
{
protected:
    AxModelSetEntry* add(char const* type, char const* label, char const* category = nullptr)
    {
        auto entry = std::make_unique<AxModelSetEntry>("", nullptr);
        entry->setObjectType(typeOf(type));
        entry->setLabel(label);
        if (category)
        {
            entry->categories().add(category);
        }
        AxModelSetEntry* const added = models.addModel(entry.get(), false);
        if (added == entry.get())
        {
            static_cast<void>(entry.release());
        }
        return added;
    }
    bool load(std::string const& items) { return models.load(put("all.models", "(model-set " + items + ")\n")); }
    std::string labels() const
    {
        std::string text;
        for (AxModelSetEntry const* entry : models)
        {
            text += (text.empty() ? "" : " ") + entry->label().string();
        }
        return text;
    }
    static std::string labelOf(AxModelSetEntry const* entry) { return entry ? entry->label().string() : "none"; }
    static std::string joined(std::set<AxString> const& words)
    {
        std::string text;
        for (AxString const& word : words)
        {
            text += (text.empty() ? "" : " ") + word.string();
        }
        return text;
    }

    AxModelSet models{"model-set", nullptr};
};
} // namespace

TEST_F(AxModelSetTest, NewEntryMayBeCreatedFromOnePalette)
{
    AxModelSetEntry const entry("", nullptr);
    EXPECT_TRUE(entry.canCreate());
    EXPECT_FALSE(entry.canAggregate());
    EXPECT_TRUE(entry.includeInBvSpCalcs());
    EXPECT_EQ(entry.onPalettes().value(), std::vector<AxString>{"EntityCreationPalette"});
    EXPECT_TRUE(entry.objectType().isNull());
    EXPECT_EQ(entry.writtenText(), "(model)\n");
}

TEST_F(AxModelSetTest, EntryReadsAndWritesItsKeywordsInOrder)
{
    AxModelSetEntry entry("", nullptr);
    std::string const text = "(model\n  (can-create false)\n  (can-aggregate true)\n  (label \"M1A2\")\n"
                             "  (unique-id \"ModelSet-329026-M1A2\")\n  (keywords \"tank heavy\")\n"
                             "  (menu-icon \"tank.png\")\n  (default-overlay-layer \"Vehicles\")\n"
                             "  (object-type 1 1 1 225 1 1 3 0)\n  (force-types 1 3)\n"
                             "  (on-palettes \"Armour\" \"EntityCreationPalette\")\n  (categories \"Tank\")\n"
                             "  (deployable-countries \"US\")\n  (include-in-bv-sp-calcs false))\n";
    ASSERT_TRUE(entry.readText(text, "m.models", {}, {}));
    EXPECT_EQ(entry.writtenText(), text);
    AxModelSetEntry back("", nullptr);
    EXPECT_TRUE(back.fromXml(entry.toXml()));
    EXPECT_EQ(back.writtenText(), text);
    EXPECT_EQ(warned(), "");
}

TEST_F(AxModelSetTest, EntryIsTakenOnAndOffPalettes)
{
    AxModelSetEntry entry("", nullptr);
    entry.addOnPalette("Armour");
    entry.addOnPalette("Armour");
    EXPECT_EQ(entry.onPalettes().size(), 2U);
    entry.removeOnPalette("EntityCreationPalette");
    EXPECT_EQ(entry.writtenText(), "(model\n  (on-palettes \"Armour\"))\n");
    entry.setOnlyOnPalette("Ships");
    EXPECT_EQ(entry.onPalettes().value(), std::vector<AxString>{"Ships"});
    entry.reset();
    EXPECT_EQ(entry.onPalettes().value(), std::vector<AxString>{"EntityCreationPalette"});
    ASSERT_TRUE(entry.readText("(model (on-palettes))", "m.models", {}, {}));
    EXPECT_TRUE(entry.onPalettes().empty());
}

TEST_F(AxModelSetTest, CloneCarriesThePlatform)
{
    AxModelSetEntry entry("", nullptr);
    entry.setPlatform("m1a2");
    entry.setLabel("M1A2");
    std::unique_ptr<AxModelSetEntry> const clone(entry.clone());
    EXPECT_EQ(clone->platform(), "m1a2");
    EXPECT_TRUE(clone->equals(entry));
}

TEST_F(AxModelSetTest, IdentifiersFollowTheStoredFormat)
{
    struct Case
    {
        char const* label;
        char const* id;
    };
    for (Case const& row : {Case{"M1A2", "ModelSet-329026-M1A2"}, Case{"T-72B", "ModelSet-5704290-T-72B"},
                            Case{"Infantry squad", "ModelSet-48900180-Infantry squad"}, Case{"", "ModelSet-0-"},
                            Case{"\xff", "ModelSet-255-\xff"}})
    {
        EXPECT_EQ(AxModelSet::createUniqueID(AxString(row.label)), row.id);
    }
}

TEST_F(AxModelSetTest, EqualLabelsGetNumberedIdentifiers)
{
    EXPECT_EQ(add("1:1:1:225:1:1:1:0", "M1A2")->uniqueId(), "ModelSet-329026-M1A2");
    EXPECT_EQ(add("1:1:1:225:1:1:2:0", "M1A2")->uniqueId(), "ModelSet-329026-M1A2-1");
    EXPECT_EQ(add("1:1:1:225:1:1:3:0", "M1A2")->uniqueId(), "ModelSet-329026-M1A2-2");
}

TEST_F(AxModelSetTest, FindsByTypeLabelAndIdentifier)
{
    AxModelSetEntry* const pattern = add("1:1:1:225:1:-1:-1:-1", "Some tank");
    AxModelSetEntry* const exact = add("1:1:1:225:1:1:3:0", "M1A2");
    EXPECT_EQ(models.find(tank), exact);
    EXPECT_EQ(models.find(typeOf("1:1:1:225:1:1:2:0")), nullptr);
    EXPECT_EQ(models.findMatchingPattern(typeOf("1:1:1:225:1:1:2:0")), pattern);
    EXPECT_EQ(models.findMatchingPattern(tank), exact);
    EXPECT_EQ(models.findMatchingPattern(typeOf("1:1:2:225:1:1:2:0")), nullptr);
    EXPECT_EQ(models.findByLabel("M1A2"), exact);
    EXPECT_EQ(models.findByLabel("m1a2"), nullptr);
    EXPECT_EQ(models.findByUniqueID("ModelSet-329026-M1A2"), exact);
    EXPECT_EQ(models.objectTypeFor("M1A2"), tank);
    EXPECT_TRUE(models.objectTypeFor("T-72").isNull());
    std::list<AxString> fitting;
    models.entitiesForObjectType(typeOf("1:1:1:225:1:1:-1:-1"), fitting);
    EXPECT_EQ(fitting, std::list<AxString>{"M1A2"});
}

TEST_F(AxModelSetTest, OfEquallyGoodPatternsTheLaterAnswers)
{
    add("1:1:1:225:1:-1:-1:-1", "first");
    add("1:1:1:225:-1:1:-1:-1", "second");
    EXPECT_EQ(labelOf(models.findMatchingPattern(tank)), "second");
    add("-1:-1:-1:-1:-1:-1:-1:-1", "any");
    EXPECT_EQ(labelOf(models.findMatchingPattern(tank)), "second");
    EXPECT_EQ(labelOf(models.findMatchingPattern(typeOf("7:2:3:4:5:6:7:8"))), "any");
}

TEST_F(AxModelSetTest, PatternLookUpIsTheWalkOverAllEntries)
{
    std::mt19937 random(7);
    auto const field = [&random] { return static_cast<int>(random() % 3) - 1; };
    auto const type = [&field]
    { return AxObjectType(field(), field(), field(), field(), field(), field(), field(), field()); };
    for (int i = 0; i < 150; ++i)
    {
        AxModelSetEntry entry("", nullptr);
        entry.setObjectType(type());
        models.addModel(&entry, true);
    }
    for (int i = 0; i < 200; ++i)
    {
        AxObjectType const asked = type();
        AxModelSetEntry const* best = nullptr;
        AxModelSetEntry const* first = nullptr;
        int most = 0;
        for (AxModelSetEntry const* entry : models)
        {
            AxObjectType::Fields const& theirs = entry->objectType().fields();
            int equal = 0;
            bool fits = true;
            for (std::size_t f = 0; f < theirs.size(); ++f)
            {
                equal += theirs[f] == asked.fields()[f] ? 1 : 0;
                fits = fits && (theirs[f] == -1 || theirs[f] == asked.fields()[f]);
            }
            if (fits && (!best || equal >= most))
            {
                best = entry;
                most = equal;
            }
            first = !first && entry->objectType() == asked ? entry : first;
        }
        ASSERT_EQ(models.findMatchingPattern(asked), best) << asked.string();
        ASSERT_EQ(models.find(asked), first) << asked.string();
    }
}

TEST_F(AxModelSetTest, ExactLookUpFollowsEveryChange)
{
    AxModelSetEntry* const entry = add("1:1:1:225:1:1:3:0", "M1A2");
    EXPECT_EQ(models.find(tank), entry);
    entry->setObjectType(tanks);
    EXPECT_EQ(models.find(tank), nullptr);
    EXPECT_EQ(models.find(tanks), entry);
    auto* const twin = new AxModelSetEntry("", nullptr);
    twin->setObjectType(tanks);
    models.addToStart(twin);
    EXPECT_EQ(models.find(tanks), twin);
    models.remove(twin, nullptr);
    EXPECT_EQ(models.find(tanks), entry);
    delete twin;
    EXPECT_TRUE(models.removeModel(tanks));
    EXPECT_FALSE(models.removeModel(tanks));
    EXPECT_EQ(models.count(), 0);
}

TEST_F(AxModelSetTest, RemovalsLeaveLookUpsAndCategoriesThoseOfAWalk)
{
    std::mt19937 random(11);
    auto const type = [&random] { return AxObjectType(1, 1, 1, 1, 1, 1, 1, static_cast<int>(random() % 40)); };
    auto const pick = [&]
    {
        AxListItem const* item = models.first();
        for (std::size_t i = random() % static_cast<std::size_t>(models.count()); i > 0; --i)
        {
            item = item->next();
        }
        return static_cast<AxModelSetEntry*>(AxRwList::element(item));
    };
    for (int step = 0; step < 2000; ++step)
    {
        AxModelSetEntry entry("", nullptr);
        entry.setObjectType(type());
        entry.categories() = std::vector<AxString>{AxString(std::to_string(random() % 30))};
        switch (models.count() < 3 ? 0U : random() % 6)
        {
        case 0:
        case 1:
            models.addModel(&entry, true);
            break;
        case 2:
            models.add(entry.clone()); // perhaps a second one of its type
            models.addCategoriesFrom(entry);
            break;
        case 3:
            pick()->setObjectType(type());
            break;
        case 4:
            models.removeModel(pick());
            break;
        default:
            models.removeModel(type());
        }
        AxObjectType const asked = type();
        AxModelSetEntry const* first = nullptr;
        std::set<AxString> categories;
        for (AxModelSetEntry const* each : models)
        {
            first = !first && each->objectType() == asked ? each : first;
            categories.insert(each->categories().begin(), each->categories().end());
        }
        AxModelSetEntry const* const found = models.find(asked);
        ASSERT_EQ(found != nullptr, first != nullptr) << step;
        ASSERT_TRUE(!found || found->objectType() == asked) << step;
        std::set<AxString> const told = models.categories();
        ASSERT_TRUE(std::includes(told.begin(), told.end(), categories.begin(), categories.end())) << step;
    }
    while (models.count() > 0)
    {
        ASSERT_TRUE(models.removeModel(pick()->objectType()));
    }
    EXPECT_TRUE(models.categories().empty());
}

TEST_F(AxModelSetTest, AKnownTypeTakesOverTheValuesInItsPlace)
{
    AxModelSetEntry* const tankEntry = add("1:1:1:225:1:1:3:0", "M1A2", "Tank");
    add("1:1:1:222:1:2:6:0", "T-72B");
    AxModelSetEntry again("", nullptr);
    again.setObjectType(tank);
    again.setLabel("M1A2 SEP");
    EXPECT_EQ(models.addModel(&again, false), tankEntry);
    EXPECT_EQ(labels(), "M1A2 SEP T-72B");
    EXPECT_EQ(tankEntry->uniqueId(), "ModelSet-329026-M1A2") << "scenarios know it by this";
    EXPECT_TRUE(tankEntry->categories().empty());
    EXPECT_EQ(joined(models.categories()), "Tank") << "an update only merges";
    again.setUniqueId("mine");
    models.addModel(&again, true);
    EXPECT_EQ(tankEntry->uniqueId(), "mine");
}

TEST_F(AxModelSetTest, ModelsOfUnreadableTypesStayBesideEachOther)
{
    EXPECT_TRUE(load("(model (label \"a\") (object-type 1 2)) (model (label \"b\")) (model (label \"c\"))"));
    EXPECT_EQ(labels(), "a b c");
}

TEST_F(AxModelSetTest, CategoriesAreThoseOfTheEntriesOnEachPalette)
{
    AxModelSetEntry* const tankEntry = add("1:1:1:225:1:1:3:0", "M1A2", "Tank");
    AxModelSetEntry ship("", nullptr);
    ship.setObjectType(typeOf("1:1:3:225:4:1:1:0"));
    ship.setOnlyOnPalette("Ships");
    ship.categories() = std::vector<AxString>{"Destroyer", "Warship"};
    models.addModel(&ship, true);
    EXPECT_EQ(joined(models.categoriesForPalette("EntityCreationPalette")), "Tank");
    EXPECT_EQ(joined(models.categoriesForPalette("Ships")), "Destroyer Warship");
    EXPECT_EQ(joined(models.categoriesForPalette("none")), "");
    EXPECT_EQ(joined(models.categories()), "Destroyer Tank Warship");
    models.removeModel(tankEntry);
    EXPECT_EQ(joined(models.categories()), "Destroyer Warship");
    models.clear();
    EXPECT_EQ(joined(models.categories()), "");
}

TEST_F(AxModelSetTest, GroupsWithoutATypeGetTheNextFreeOne)
{
    Group group("", nullptr);
    group.setLabel("Patrol");
    EXPECT_EQ(models.addModel(&group, true)->objectType().string(), "5:0:0:0:0:0:0:1");
    Group last("", nullptr);
    last.setObjectType(typeOf("5:0:0:0:0:0:9:255"));
    models.addModel(&last, true);
    EXPECT_EQ(models.nextAvailableSimulationObjectGroupObjectType().string(), "5:0:0:0:0:0:10:0");
    models.updateNextSimulationObjectGroupObjectType(tank);
    EXPECT_EQ(models.nextAvailableSimulationObjectGroupObjectType().string(), "5:0:0:0:0:0:10:0");
    models.clear();
    EXPECT_EQ(models.nextAvailableSimulationObjectGroupObjectType().string(), "5:0:0:0:0:0:10:0");
}

TEST_F(AxModelSetTest, GroupsAreFoundByTheirLabels)
{
    add("1:1:1:225:1:1:3:0", "Patrol");
    Group group("", nullptr);
    group.setLabel("Patrol");
    AxModelSetEntry* const added = models.addModel(&group, true);
    EXPECT_EQ(models.findSimulationObjectGroup("Patrol"), added);
    EXPECT_EQ(models.findSimulationObjectGroup("M1A2"), nullptr);
}

TEST_F(AxModelSetTest, SavedAndLoadedTheSetIsEqualAndWritesTheSame)
{
    std::string const text = "(model-set\n  (version 2)\n  (comment \"desert vehicles\")\n"
                             "  (model\n    (label \"M1A2\")\n    (unique-id \"ModelSet-329026-M1A2\")\n"
                             "    (object-type 1 1 1 225 1 1 3 0)\n    (colour \"sand\"))\n"
                             "  (simulation-object-group\n    (label \"Patrol\")\n    (unique-id \"p1\")\n"
                             "    (object-type 5 0 0 0 0 0 0 7)\n    (filename \"patrol.sog\")))\n";
    ASSERT_TRUE(models.load(put("all.models", text)));
    EXPECT_NE(warned().find("unknown keyword \"colour\""), std::string::npos);
    EXPECT_EQ(models.version(), 2);
    EXPECT_EQ(models.comment(), "desert vehicles");
    EXPECT_EQ(models.nextAvailableSimulationObjectGroupObjectType().string(), "5:0:0:0:0:0:0:8");
    ASSERT_TRUE(models.save(AxFilename(path("again.models"))));
    EXPECT_EQ(get("again.models"), text);
    AxModelSet again("", nullptr);
    EXPECT_TRUE(again.load(AxFilename(path("again.models"))));
    EXPECT_TRUE(again == models);
    AxModelSet const copy(models);
    EXPECT_TRUE(copy == models);
    AxModelSet tree("model-set", nullptr);
    EXPECT_TRUE(tree.fromXml(models.toXml()));
    EXPECT_EQ(tree.writtenText(), text);
}

TEST_F(AxModelSetTest, LoadingAddsToWhatIsThere)
{
    add("1:1:1:225:1:1:3:0", "M1A2");
    EXPECT_TRUE(load("(model (label \"T-72B\") (object-type 1 1 1 222 1 2 6 0))"
                     "(model (label \"M1A2 SEP\") (object-type 1 1 1 225 1 1 3 0)) 12"));
    EXPECT_EQ(labels(), "M1A2 SEP T-72B");
    EXPECT_EQ(models.findByLabel("T-72B")->uniqueId(), "ModelSet-5704290-T-72B");
    EXPECT_NE(models.writtenText().find("\n  12"), std::string::npos) << "what is no entry is kept";
}

TEST_F(AxModelSetTest, EntityFilesGiveAnEntryForEachObject)
{
    put("data/b.entity",
        "<entities>\n"
        "<simObject name=\"m1a2\"><objectType name=\"objectType\" value=\"1:1:1:225:1:1:3:0\"/>"
        "<platform name=\"abrams\" parameter-type=\"zed-object-param\" mass=\"5\"/>"
        "<guiInformation name=\"gui\" label=\"M1A2\" menu-icon=\"tank.png\" can-create=\"false\">"
        "<strings name=\"categories\" value=\"Tank &quot;Main battle&quot;\"/><forces name=\"force-types\" value=\"1 "
        "3\"/>"
        "</guiInformation></simObject>\n"
        "<simObject name=\"any\"><matchType name=\"matchType\" value=\"1:1:1:-1:6:-1:-1:-1\"/></simObject>\n"
        "<simObject name=\"none\"/>\n</entities>");
    put("data/a.entity", "<simObject name=\"t72\"><objectType value=\"1:1:1:222:1:2:6:0\"/></simObject>");
    put("data/below/c.entity", "<simObject><objectType value=\"1:1:1:222:1:2:7:0\"/></simObject>");
    put("data/g.sog", "<simulationObjectGroup label=\"Patrol\"/>");
    put("data/z.ope", "(no entity)");
    EXPECT_TRUE(models.loadFromDataFiles(AxFilename(path("data"))));
    EXPECT_EQ(warned(), path("data/b.entity") + ":4:1: warning: object \"none\" has no object type and is left out of "
                                                "the models [no-object-type]\n");
    EXPECT_NE(news.text().find("object \"any\" has no object type"), std::string::npos);
    ASSERT_EQ(models.count(), 3);
    EXPECT_EQ((*models.begin())->objectType().string(), "1:1:1:222:1:2:6:0") << "a file without gui information";
    EXPECT_EQ(labels(), "M1A2 Patrol");
    AxModelSetEntry const* const entry = models.find(tank);
    ASSERT_TRUE(entry);
    EXPECT_EQ(entry->platform(), "abrams");
    EXPECT_EQ(entry->uniqueId(), "ModelSet-329026-M1A2");
    EXPECT_EQ(entry->writtenText(),
              "(model\n  (can-create false)\n  (label \"M1A2\")\n  (unique-id \"ModelSet-329026-M1A2\")\n"
              "  (menu-icon \"tank.png\")\n  (object-type 1 1 1 225 1 1 3 0)\n  (force-types 1 3)\n"
              "  (categories \"Tank\" \"Main battle\"))\n");
    EXPECT_EQ(joined(models.categories()), "Main battle Tank");
}

TEST_F(AxModelSetTest, AnEntryIsWrittenIntoItsObjectElement)
{
    AxFilename const file = put("m1.entity", "<simObject><objectType name=\"objectType\" value=\"1:1:1:225:1:1:3:0\"/>"
                                             "<guiInformation name=\"gui\" label=\"old\" odd=\"1\"><future/>"
                                             "</guiInformation><other/></simObject>");
    AxEnvironmentPtr const env = AxZedXmlUtils::CreateZedXmlEnvironment(file, true);
    AxModelSetEntry entry("", nullptr);
    ASSERT_TRUE(entry.readFromEnvironment(env, env->root()));
    entry.setLabel("M1A2");
    entry.addOnPalette("Armour");
    ASSERT_TRUE(entry.writeToEnvironment(env, env->root()));
    AxModelSetEntry again("", nullptr);
    ASSERT_TRUE(again.readFromEnvironment(env, env->root()));
    EXPECT_EQ(again.writtenText(), entry.writtenText());
    EXPECT_EQ(entry.keptItems().size(), 2U);
    AxModelSet saved("models", nullptr);
    saved.addModel(&entry, true);
    ASSERT_TRUE(saved.save(AxFilename(path("saved.models"))));
    warned();
    ASSERT_TRUE(models.load(AxFilename(path("saved.models"))));
    EXPECT_EQ(warned(), "");
    ASSERT_TRUE(models.find(tank)->writeToEnvironment(env, env->root()));
    ASSERT_TRUE(AxZedXmlUtils::writeEnvironment(env, AxFilename(path("new.entity"))));
    std::string const text = get("new.entity");
    EXPECT_NE(text.find("odd=\"1\""), std::string::npos) << text;
    EXPECT_NE(text.find("<future/>"), std::string::npos) << text;
    EXPECT_NE(text.find("<other/>"), std::string::npos) << text;
}

TEST_F(AxModelSetTest, EntityFilesThatFailAreToldAndTheOthersRead)
{
    put("data/a.entity", "<entities><simObject>");
    put("data/b.entity", "<simObject><objectType value=\"tank\"/></simObject>");
    put("data/c.entity", "<simObject><objectType value=\"1:1:1:222:1:2:6:0\"/><guiInformation label=\"T-72\" "
                         "colour=\"sand\"/></simObject>");
    EXPECT_FALSE(models.loadFromDataFiles(AxFilename(path("data"))));
    EXPECT_EQ(labels(), "T-72");
    std::string const lines = warned();
    for (char const* file : {"data/a.entity:1:", "data/b.entity:1:", "data/c.entity:1:"})
    {
        EXPECT_NE(lines.find(path(file)), std::string::npos) << lines;
    }
    EXPECT_EQ(std::count(lines.begin(), lines.end(), '\n'), 3) << lines;
    EXPECT_FALSE(models.loadFromDataFiles(AxFilename(path("none"))));
    EXPECT_EQ(warned(), path("none") + ": error: cannot be read as a directory: No such file or directory "
                                       "[unreadable-directory]\n");
}

TEST_F(AxModelSetTest, IdentifiersOfLoadedEntriesAreNumberedAsThoseOfAddedOnes)
{
    std::string items;
    for (char const* id : {"", "ModelSet-97-a-1", "", "", "", "ModelSet-97-a-2", ""})
    {
        AxModelSetEntry entry("", nullptr);
        entry.setLabel("a");
        entry.setUniqueId(id);
        entry.setObjectType(AxObjectType(1, 1, 1, 1, 1, 1, models.count() == 5 ? 2 : models.count()));
        items += entry.writtenText();
        models.addModel(&entry, true);
    }
    AxModelSet loaded("model-set", nullptr);
    ASSERT_TRUE(loaded.load(put("all.models", "(model-set " + items + ")")));
    EXPECT_EQ(loaded.writtenText(), models.writtenText());
    EXPECT_TRUE(models.findByUniqueID("ModelSet-97-a-3"));
}

TEST_F(AxModelSetTest, FilesThatFailAreTold)
{
    EXPECT_FALSE(models.load(AxFilename(path("none.models"))));
    EXPECT_EQ(warned(), "AxModelSet::load() :          error opening " + path("none.models") +
                            " for reading: No such file or directory\n");
    EXPECT_FALSE(load("(model (label \"M1A2\") (object-type 1 1 1 225 1 1 3 0)) (model (label \"T-72B)"));
    EXPECT_EQ(warned(), "Error parsing " + path("all.models") + "\n");
    EXPECT_EQ(labels(), "M1A2 ") << "what was read before, and the model that was begun";
    EXPECT_FALSE(models.load(put("open.models", "(model-set (model (label \"T-80\")")));
    EXPECT_EQ(warned(), "Error parsing " + path("open.models") + "\n");
    EXPECT_FALSE(models.load(put("empty.models", "; nothing\n")));
    EXPECT_EQ(warned(), "Error parsing " + path("empty.models") + "\n");
    EXPECT_FALSE(models.save(AxFilename(path("no/such/dir.models"))));
    EXPECT_NE(warned().find("cannot be written"), std::string::npos);
}
