#include "AxComponentSystemDescriptor.h"

#include "AxComponentSystemDefinition.h"
#include "AxRwReal.h"
#include "AxRwVariableBindings.h"
#include "AxSinkScope.h"
#include "AxSystemRealParameterData.h"
#include "Folder.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{
void read(AxReaderWriter& rw, std::string const& text, Folder const& folder)
{
    rw.readText(text, "tank.ope", folder.search(), AxReaderWriter::nullVariableReference());
}

char const* const gunSystem = R"sys((system-definition
  (systems
    (mount (slew-rate $mount-rate)
      (system-definition
        (resources)
        (meta-data (system-name "rate $slew-rate")
          (system-attributes ("axis" "$(slew-rate)"))
          (parameter-data-list (real-parameter-data (parameter-name "slew-rate")))))))
  (connections (connect system:target-list gun:targets))
  (meta-data
    (system-name "gun")
    (system-description "$(label) gun")
    (parameter-data-list
      (real-parameter-data (parameter-name "reload-time") (default-value 8.0))
      (real-parameter-data (parameter-name "mount-rate") (default-value 0.5))
      (string-parameter-data (parameter-name "label") (default-value "light"))
      (real-parameter-data (parameter-name "is-enabled"))
      (real-parameter-data (parameter-name "odd") (variable-type "AxRwNothing"))))))sys";
} // namespace

TEST(AxComponentSystemDescriptor, NewOneWritesIsEnabled)
{
    AxComponentSystemDescriptor const system("gun", nullptr);
    EXPECT_EQ(system.writtenText(), "(gun\n  (is-enabled true))\n");
    EXPECT_FALSE(system.partOfRollUp());
    EXPECT_EQ(system.systemDefinition()->name(), AxString("system-definition"));
}

TEST(AxComponentSystemDescriptor, ReadsTheDefinitionBeforeTheParametersItDeclares)
{
    Folder const folder;
    folder.write("gun.sys", gunSystem);
    AxSinkScope warnings(AxWarn);
    AxComponentSystemDescriptor system("gun", nullptr);
    std::string const text = "(gun\n  (system-definition \"gun.sys\")\n  (is-enabled false)\n  (reload-time 6.0))\n";
    read(system, "(gun (is-enabled false) (reload-time 6.0) (system-definition \"gun.sys\"))", folder);
    EXPECT_EQ(system.writtenText(), text);
    EXPECT_EQ(system.systemDefinition()->metaData().systemName(), "gun");
    auto const* const rate = dynamic_cast<AxRwReal*>(system.registry()->lookup("mount-rate"));
    ASSERT_NE(rate, nullptr);
    EXPECT_EQ(rate->value(), 0.5);
    EXPECT_FALSE(rate->valueSpecified());
    EXPECT_NE(warnings.text().find("[parameter-name-taken]"), std::string::npos);
    EXPECT_NE(warnings.text().find("[unknown-type]"), std::string::npos);
    EXPECT_FALSE(system.systemDefinitionFile().contentChanged());
    EXPECT_EQ(system.registry()->count(), 6);

    warnings.clear();
    AxComponentSystemDescriptor const copy(system);
    EXPECT_TRUE(copy == system);
    EXPECT_EQ(copy.writtenText(), text);
    EXPECT_EQ(copy.writtenText(true), system.writtenText(true));
    EXPECT_TRUE(*copy.systemDefinition() == *system.systemDefinition());
    EXPECT_EQ(warnings.text(), "");
}

TEST(AxComponentSystemDescriptor, BindsReferencesInTheDefinitionToItsParameters)
{
    Folder const folder;
    folder.write("gun.sys", gunSystem);
    AxSinkScope quiet(AxWarn);
    AxComponentSystemDescriptor light("gun", nullptr);
    AxComponentSystemDescriptor heavy("gun", nullptr);
    read(light, "(gun (system-definition \"gun.sys\"))", folder);
    read(heavy, "(gun (label \"heavy\") (mount-rate 0.25) (system-definition \"gun.sys\"))", folder);
    EXPECT_EQ(light.systemDefinition()->metaData().systemDescription(), "light gun");
    EXPECT_EQ(heavy.systemDefinition()->metaData().systemDescription(), "heavy gun");

    // A nested system passes a parameter of the outer one on to its own definition.
    AxComponentSystemDescriptor* const mount =
        heavy.systemDefinition()->systemDescriptorList().lookupComponentSystemDescriptor("mount");
    ASSERT_NE(mount, nullptr);
    EXPECT_EQ(dynamic_cast<AxRwReal&>(*mount->registry()->lookup("slew-rate")).value(), 0.25);
    EXPECT_EQ(mount->systemDefinition()->metaData().attributeList().at("axis"), AxString("0.25"));
    EXPECT_NE(mount->writtenText().find("(slew-rate $mount-rate)"), std::string::npos);
    EXPECT_TRUE(heavy.unboundVariables().empty());
}

TEST(AxComponentSystemDescriptor, TheNearestParameterOfANameCounts)
{
    Folder const folder;
    std::string const own = "(meta-data (system-name \"$(label)\") (system-description \"$(outer) $(inner)\") "
                            "(parameter-data-list (string-parameter-data (parameter-name \"label\")) "
                            "(string-parameter-data (parameter-name \"";
    AxComponentSystemDescriptor turret("turret", nullptr);
    read(turret,
         "(turret (label \"a\") (outer \"o\") (system-definition (systems (mount (label \"b\") (inner \"i\") "
         "(system-definition " +
             own + "inner\"))))))) " + own + "outer\"))))))",
         folder);
    AxComponentSystemDescriptor* const mount =
        turret.systemDefinition()->systemDescriptorList().lookupComponentSystemDescriptor("mount");
    ASSERT_NE(mount, nullptr);
    EXPECT_EQ(turret.systemDefinition()->metaData().systemName(), "a");
    EXPECT_EQ(mount->systemDefinition()->metaData().systemName(), "b");
    EXPECT_EQ(mount->systemDefinition()->metaData().systemDescription(), "o i");
}

TEST(AxComponentSystemDescriptor, KeepsParametersOfAMissingDefinition)
{
    Folder const folder;
    AxSinkScope quiet(AxWarn);
    AxComponentSystemDescriptor system("gun", nullptr);
    std::string const text = "(gun\n  (system-definition \"none.sys\")\n  (is-enabled true)\n  (reload-time 6.0))\n";
    read(system, text, folder);
    EXPECT_EQ(system.writtenText(), text);
}

TEST(AxComponentSystemDescriptor, DefinitionThatIncludesItselfEndsThere)
{
    Folder const folder;
    folder.write("loop.sys", "(system-definition (systems (inner (system-definition \"loop.sys\"))))");
    AxSinkScope warnings(AxWarn);
    AxComponentSystemDescriptor system("outer", nullptr);
    read(system, "(outer (system-definition \"loop.sys\"))", folder);
    AxComponentSystemDescriptor const* const inner =
        system.systemDefinition()->systemDescriptorList().lookupComponentSystemDescriptor("inner");
    ASSERT_NE(inner, nullptr);
    EXPECT_TRUE(inner->systemDefinition()->systemDescriptorList().isEmpty());
    EXPECT_EQ(inner->systemDefinitionFile().filename(), AxFilename("loop.sys"));
    EXPECT_NE(warnings.text().find("loop.sys"), std::string::npos);
}

TEST(AxComponentSystemDescriptor, DefinitionMayStandInline)
{
    Folder const folder;
    AxComponentSystemDescriptor system("gun", nullptr);
    std::string const text =
        "(gun\n  (system-definition\n    (connections\n      (connect a b)))\n  (is-enabled true))\n";
    read(system, text, folder);
    EXPECT_NE(system.systemDefinition()->connectionDescriptorList().findConnection("a", "b"), nullptr);
    EXPECT_EQ(system.writtenText(), text);
    std::unique_ptr<AxComponentSystemDescriptor> const clone(system.clone(nullptr));
    EXPECT_EQ(clone->writtenText(), text);
    EXPECT_TRUE(*clone == system);
    clone->systemDefinition()->connectionDescriptorList().addConnection("c", "d");
    EXPECT_FALSE(*clone == system);
}

TEST(AxComponentSystemDescriptor, ResetLeavesAnEmptyUnchangedDefinition)
{
    AxComponentSystemDescriptor system("gun", nullptr);
    system.systemDefinition()->metaData().setSystemName("gun");
    EXPECT_TRUE(system.systemDefinitionFile().contentChanged());
    system.resetSystemDefinition();
    EXPECT_FALSE(system.systemDefinitionFile().contentChanged());
    EXPECT_TRUE(system.systemDefinition()->metaData().systemName().isNull());
    EXPECT_EQ(system.systemDefinitionFile().content(), system.systemDefinition());
    EXPECT_TRUE(system.hasChild(&system.systemDefinition()->metaData()));
}

TEST(AxComponentSystemDescriptor, CopyHasTheMembersOfItsSourceWhateverTheDefinitionDeclaresNow)
{
    Folder const folder;
    folder.write("gun.sys", gunSystem);
    AxSinkScope quiet(AxWarn);
    AxComponentSystemDescriptor system("gun", nullptr);
    read(system, "(gun (system-definition \"gun.sys\") (reload-time 6.0) (unheard-of 1))", folder);
    system.resetSystemDefinition();
    AxComponentSystemDescriptor const copy(system);
    EXPECT_TRUE(copy == system);
    EXPECT_EQ(copy.writtenText(), system.writtenText());
    EXPECT_NE(copy.writtenText().find("(reload-time 6.0)\n  (unheard-of 1)"), std::string::npos);

    AxComponentSystemDescriptor undeclared("gun", nullptr);
    AxSystemRealParameterData speed("speed", nullptr);
    speed.setParameterName("speed");
    undeclared.systemDefinition()->metaData().paramterDataList().add(&speed);
    EXPECT_TRUE(AxComponentSystemDescriptor(undeclared) == undeclared);
}

TEST(AxComponentSystemDescriptor, SettersMark)
{
    AxComponentSystemDescriptor system("gun", nullptr);
    system.setPartOfRollUp(false);
    system.setSystemDefinitionFile("gun.sys");
    EXPECT_EQ(system.writtenText(),
              "(gun\n  (system-definition \"gun.sys\")\n  (is-enabled true)\n  (part-of-roll-up false))\n");
}

TEST(AxComponentSystemDescriptorList, LaterDescriptorOfANameReplaces)
{
    Folder const folder;
    AxComponentSystemDescriptorList list("systems", nullptr);
    read(list, "(systems (gun (is-enabled false)) (radar) (gun (part-of-roll-up true)))", folder);
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(list.writtenText(), "(systems\n  (radar\n    (is-enabled true))\n"
                                  "  (gun\n    (is-enabled true)\n    (part-of-roll-up true)))\n");
    EXPECT_EQ(list.lookupComponentSystemDescriptor("turret"), nullptr);
    AxComponentSystemDescriptorList const copy(list);
    EXPECT_TRUE(copy == list);
    list.addComponentSystemDescriptor(AxComponentSystemDescriptor("turret", nullptr));
    EXPECT_NE(list.lookupComponentSystemDescriptor("turret"), nullptr);
    EXPECT_FALSE(copy == list);
    list.emptyList();
    EXPECT_FALSE(list.valueSpecified());

    for (int i = 0; i < 100; ++i)
    {
        list.addComponentSystemDescriptor(AxComponentSystemDescriptor(("s" + std::to_string(i)).c_str(), nullptr));
    }
    AxComponentSystemDescriptorList onto(copy);
    onto.addComponentSystemDescriptor(AxComponentSystemDescriptor("s50", nullptr));
    onto.copyList(list);
    EXPECT_EQ(onto.count(), 102);
    EXPECT_EQ(onto.firstElement()->AxReaderWriter::name(), copy.firstElement()->AxReaderWriter::name());

    char const* const odd = "(systems\n  (7 (is-enabled true))\n  ((a b) (is-enabled true)))\n";
    AxSinkScope const warnings(AxWarn);
    read(list, odd, folder);
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(list.writtenText(), odd);
}

TEST(AxComponentSystemDefinition, CompatibilityNamesTakeNoPartInEquality)
{
    AxComponentSystemDefinition a("system-definition", nullptr);
    a.compatibilityPsrNames().add("old");
    a.connectionDescriptorList().addConnection("x", "y");
    AxComponentSystemDefinition b(a);
    EXPECT_TRUE(b.compatibilityPsrNames().contains("old"));
    b.compatibilityPsrNames().add("older");
    EXPECT_TRUE(a == b);
    b.metaData().setSystemName("n");
    EXPECT_FALSE(a == b);
}

TEST(AxComponentSystemDescriptor, NamesThatDoubleEachOtherEnd)
{
    Folder const folder;
    std::string bindings = "(variable-bindings (own (a (system-definition (systems $own))))";
    for (int i = 0; i < 31; ++i)
    {
        std::string const next = std::to_string(i + 1);
        std::string const file = "(system-definition \"" + next + ".sys\")";
        folder.write(std::to_string(i) + ".sys", "(system-definition (systems (a " + file + ") (b " + file + ")))");
        std::string const value = "(system-definition (systems $v" + next + "))";
        bindings += " (v" + std::to_string(i) + " (a " + value + ") (b " + value + "))";
    }
    folder.write("31.sys", "(system-definition)");
    AxRwVariableBindings set;
    set.readText(bindings + " (v31 (a)))", AxFilename(), {}, {});
    std::string nested = "$none";
    for (int i = 0; i < 60; ++i)
    {
        nested = "(a (system-definition (systems " + nested + ")))";
    }
    struct
    {
        std::string systems;
        char const* code;
    } const cases[] = {
        {"(a (system-definition \"0.sys\"))", "[file-chain-limit]"},
        {"$v0", "[variable-limit]"},
        {"$own", "[variable-limit]"},
        {nested, ""},
    };
    for (auto const& one : cases)
    {
        AxSinkScope warnings(AxWarn);
        AxComponentSystemDescriptor system("gun", nullptr);
        system.readText("(gun (system-definition (systems " + one.systems + ")))", AxFilename("gun.ope"),
                        folder.search(), {&set});
        std::string const& told = warnings.text();
        EXPECT_EQ(std::count(told.begin(), told.end(), '\n'), *one.code == '\0' ? 0 : 1) << told;
        EXPECT_NE(told.find(one.code), std::string::npos) << told;
    }
}
