#include "AxEnvironment.h"

#include <boost/make_shared.hpp>
#include <gtest/gtest.h>

namespace
{
AxEnvironmentPtr sample()
{
    auto env = boost::make_shared<AxEnvironment>();
    AxEnvObjectPtr root = env->addObject("entities");
    AxEnvObjectPtr tank = env->addObject("m1", "simObject", root);
    env->addAttribute("value", "1:2", tank);
    env->addObject("gun", "system", tank);
    env->addObject("mg", "system", tank);
    env->addObject("m2", "simObject", root);
    return env;
}
} // namespace

TEST(AxEnvironment, FindsChildrenByNameAndType)
{
    AxEnvironmentPtr env = sample();
    AxEnvObjectPtr tank = env->getObject("m1", "simObject", nullptr);
    ASSERT_NE(tank, nullptr);
    EXPECT_EQ(env->getObject("", "system", tank)->name(), "gun");
    EXPECT_EQ(env->getObject("mg", "", tank)->type(), "system");
    EXPECT_EQ(env->getObject("mg", "simObject", tank), nullptr);
    AxEnvObjectList found;
    env->getObjectsByType("system", found, tank);
    EXPECT_EQ(found.size(), 2U);
    env->getObjectsByType("system", found);
    EXPECT_EQ(found.size(), 4U);
    env->getObjectsByName("mg", found, tank);
    EXPECT_EQ(found.back()->name(), "mg");
}

TEST(AxEnvironment, FindsNoObjectInsideAnotherOfItsType)
{
    AxEnvironmentPtr env = sample();
    env->addObject("inner", "simObject", env->getObject("m1", "", nullptr));
    AxEnvObjectList found;
    env->getObjectsByType("simObject", found);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[1]->name(), "m2");
}

TEST(AxEnvironment, KeepsAttributesInOrderAndReplacesInPlace)
{
    AxEnvironmentPtr env = sample();
    AxEnvObjectPtr tank = env->getObject("m1", "", nullptr);
    env->addAttribute("b", "1", tank);
    env->addAttribute("value", "3", tank);
    env->addAttribute("name", "m3", tank);
    ASSERT_EQ(tank->attributes().size(), 2U);
    EXPECT_EQ(tank->attributes()[0].value->value(), "3");
    EXPECT_EQ(tank->name(), "m3");
    EXPECT_EQ(env->getAttribute("b", tank)->parent(), tank);
    EXPECT_TRUE(env->remove(env->getAttribute("value", tank)));
    EXPECT_EQ(tank->attribute("value"), nullptr);
    EXPECT_EQ(*tank->attribute("name"), "m3");
}

TEST(AxEnvironment, KnowsParentsForAsLongAsTheyLive)
{
    AxEnvironmentPtr env = sample();
    AxEnvObjectPtr tank = env->getObject("m1", "", nullptr);
    AxEnvObjectPtr gun = env->getObject("gun", "", tank);
    EXPECT_EQ(gun->parent(), tank);
    EXPECT_FALSE(gun->add(tank));
    EXPECT_FALSE(gun->add(gun));
    EXPECT_TRUE(env->remove(tank));
    EXPECT_EQ(tank->parent(), nullptr);
    EXPECT_FALSE(env->remove(tank));
    tank.reset();
    EXPECT_EQ(gun->parent(), nullptr);
    EXPECT_TRUE(env->remove(env->root()));
    EXPECT_EQ(env->root(), nullptr);
}

TEST(AxEnvironment, MovesANodeFromListToList)
{
    AxEnvironmentPtr env = sample();
    AxEnvObjectPtr tank = env->getObject("m1", "", nullptr);
    AxEnvObjectPtr other = env->getObject("m2", "", nullptr);
    EXPECT_TRUE(other->add(env->getObject("gun", "", tank)));
    EXPECT_TRUE(other->add(env->getAttribute("value", tank)));
    EXPECT_EQ(tank->count(), 1U);
    EXPECT_EQ(other->count(), 2U);
    EXPECT_TRUE(tank->attributes().empty());
}

TEST(AxEnvironment, APlainTextHoldsNothing)
{
    AxEnvironmentPtr env = sample();
    AxEnvValuePtr const text = env->addValue("text", env->root());
    for (AxEnvValuePtr const& parent : {text, AxEnvValuePtr()})
    {
        EXPECT_EQ(env->addValue("inner", parent), nullptr);
        EXPECT_EQ(env->addAttribute("a", "1", parent), nullptr);
        EXPECT_EQ(env->getAttribute("value", parent), nullptr);
    }
    EXPECT_EQ(env->addObject("a", "b", text), nullptr);
    EXPECT_EQ(env->getObject("", "", text), nullptr);
    AxEnvObjectList found;
    env->getObjectsByName("m1", found, text);
    env->getObjectsByType("simObject", found, text);
    EXPECT_TRUE(found.empty());
    EXPECT_FALSE(env->remove(nullptr));
    EXPECT_FALSE(env->root()->castToList()->add(nullptr));
    env->setRoot(text);
    EXPECT_EQ(env->root(), text);
    EXPECT_EQ(text->parent(), nullptr);
    EXPECT_EQ(env->addObject("a"), nullptr);
}

TEST(AxEnvironment, ANullParentStandsForTheRoot)
{
    AxEnvironmentPtr env = sample();
    env->addObject("simObject");
    AxEnvObjectList found;
    env->getObjectsByName("m2", found, nullptr);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0]->parent(), env->root());
    env->getObjectsByType("simObject", found, nullptr);
    EXPECT_EQ(found.size(), 4U);
    env->getObjectsByName("", found, nullptr);
    EXPECT_EQ(found.size(), 4U) << "an object without a name has not the empty one";

    env->setRoot(nullptr);
    found.clear();
    EXPECT_EQ(env->getObject("", "", nullptr), nullptr);
    env->getObjectsByName("m2", found, nullptr);
    env->getObjectsByType("simObject", found, nullptr);
    env->getObjectsByType("simObject", found);
    EXPECT_TRUE(found.empty());
}

TEST(AxEnvironment, RemovesOnlyTheAttributesOfTheObject)
{
    AxEnvironmentPtr env = sample();
    AxEnvObjectPtr tank = env->getObject("m1", "", nullptr);
    AxEnvObjectPtr other = env->getObject("m2", "", nullptr);
    EXPECT_FALSE(other->removeAttribute("value"));
    EXPECT_FALSE(other->removeAttribute(tank->attributeNode("value")));
    EXPECT_EQ(tank->attributes().size(), 1U);
    EXPECT_TRUE(tank->removeAttribute("value"));
    EXPECT_TRUE(tank->removeAttribute("name"));
    EXPECT_FALSE(tank->removeAttribute("name"));
    EXPECT_EQ(tank->attribute("name"), nullptr);
    EXPECT_FALSE(tank->hasName());
}

TEST(AxEnvironment, CastsANodeToWhatItIsOnly)
{
    AxEnvValuePtr value = boost::make_shared<AxEnvValue>("text");
    AxEnvValuePtr list = boost::make_shared<AxEnvNamedList>("list");
    EXPECT_EQ(value->castToList(), nullptr);
    EXPECT_EQ(value->castToNamedList(), nullptr);
    EXPECT_EQ(list->castToNamedList(), list);
    EXPECT_EQ(list->castToObject(), nullptr);
    EXPECT_FALSE(list->isObject());
}

TEST(AxEnvironment, ComparesTrees)
{
    EXPECT_TRUE(equalTrees(sample(), sample()));
    AxEnvironmentPtr other = sample();
    AxEnvObjectPtr tank = other->getObject("m2", "", nullptr);
    tank->clearName();
    EXPECT_FALSE(equalTrees(sample(), other));
    tank->setName("");
    EXPECT_FALSE(equalTrees(sample(), other));
    tank->setName("m2");
    EXPECT_TRUE(equalTrees(sample(), other));
    other->addValue("text", tank);
    EXPECT_FALSE(equalTrees(sample(), other));
    EXPECT_FALSE(equalTrees(sample(), nullptr));
    EXPECT_FALSE(equalTrees(nullptr, sample()->root()));
    EXPECT_TRUE(equalTrees(AxEnvValuePtr(), AxEnvValuePtr()));
    EXPECT_TRUE(equalTrees(AxEnvironmentPtr(), AxEnvironmentPtr()));
}
