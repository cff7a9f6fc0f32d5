#include "RecordFixture.h"

#include "AxZedObjectParameterFactoryEntry.h"

namespace
{
class AxZedObjectParameterFactoryTest : public RecordFixture
{
};
} // namespace

TEST_F(AxZedObjectParameterFactoryTest, EachNameCreatesItsClassAndIsRemembered)
{
    for (AxString const& name : factory.typeNames())
    {
        RecordPtr const record = made(name.c_str());
        ASSERT_TRUE(record) << name;
        EXPECT_EQ(record->parameterType(), name);
        EXPECT_NE(record->subordinateObjects(), nullptr);
        RecordPtr const again = made(record->type().c_str());
        ASSERT_TRUE(again);
        AxZedObjectParameters const& first = *record;
        AxZedObjectParameters const& second = *again;
        EXPECT_EQ(typeid(second), typeid(first));
    }
    EXPECT_EQ(made("point-object-param")->type(), "zed-object-param");
}

TEST_F(AxZedObjectParameterFactoryTest, EachClassPassesTheSameRounds)
{
    for (AxString const& name : factory.typeNames())
    {
        RecordPtr const record = made(name.c_str());
        RecordPtr const clone(record->clone(record->name(), nullptr));
        AxZedObjectParameters const& original = *record;
        AxZedObjectParameters const& copy = *clone;
        EXPECT_EQ(typeid(copy), typeid(original));
        EXPECT_TRUE(*clone == *record) << name;
        EXPECT_EQ(clone->writtenText(), record->writtenText());
        EXPECT_EQ(clone->registry()->count(), record->registry()->count());
        for (bool all : {false, true})
        {
            RecordPtr const read = created(record->writtenText(all));
            ASSERT_TRUE(read) << name;
            EXPECT_EQ(read->writtenText(all), record->writtenText(all));
            EXPECT_EQ(read->type(), record->type());
        }
        EXPECT_TRUE(findings.empty()) << name << ": " << findings[0].format();
    }
}

TEST_F(AxZedObjectParameterFactoryTest, UnknownNameWarnsOnce)
{
    EXPECT_EQ(made("no-such-param"), nullptr);
    EXPECT_EQ(warnings.text(), "Can't create parameters of type no-such-param.  No creator found.\n");
    warnings.clear();
    EXPECT_EQ(made("Zed-Object-Param"), nullptr) << "names are case-sensitive";
}

TEST_F(AxZedObjectParameterFactoryTest, CopiesAreIndependent)
{
    auto copy = std::make_unique<AxZedObjectParameterFactory>(factory);
    EXPECT_EQ(copy->typeNames(), factory.typeNames());
    copy->addCreatorFcn("more", &AxZedObjectParameters::creator);
    AxZedObjectParameterFactory assigned;
    assigned.addCreatorFcn("gone", &AxZedObjectParameters::creator);
    assigned = *copy;
    assigned = static_cast<AxZedObjectParameterFactory const&>(assigned);
    copy.reset();
    EXPECT_TRUE(assigned.knows("more") && !assigned.knows("gone") && !factory.knows("more"));
    EXPECT_NE(made("text-object-param"), nullptr);
}

TEST_F(AxZedObjectParameterFactoryTest, SecondRegistrationReplacesInPlace)
{
    auto const before = factory.typeNames();
    AxZedObjectParameters::addParameterCreatorFcn(
        "zed-object-param", [](AxEnvironmentPtr, AxEnvValuePtr*) -> AxZedObjectParameters* { return nullptr; });
    EXPECT_EQ(factory.typeNames(), before);
    EXPECT_EQ(made("zed-object-param"), nullptr);
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings.front().code, "creation-failed");
}

TEST_F(AxZedObjectParameterFactoryTest, RecordsKeepWhereTheyWereReadFrom)
{
    AxEnvironmentPtr const env(new AxEnvironment);
    AxEnvValuePtr node = env->addObject("m", "simObject");
    RecordPtr const record(AxZedObjectParameters::createParameters("zed-object-param", env, &node));
    EXPECT_EQ(record->xmlEnvironment(), env);
    EXPECT_EQ(record->objectNode(), node);
    RecordPtr const clone(record->clone("n", nullptr));
    EXPECT_FALSE(clone->xmlEnvironment() || clone->objectNode());
}
