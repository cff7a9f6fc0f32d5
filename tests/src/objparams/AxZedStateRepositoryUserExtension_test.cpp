#include "AxZedStateRepositoryUserExtension.h"

#include "AxRwBoolean.h"
#include "AxRwNLengthStringVector.h"
#include "AxRwReal.h"
#include "AxUserExtensionOf.h"
#include "AxZedStateRepositoryUserExtensionFactory.h"
#include "RecordFixture.h"

#include <stdexcept>

namespace
{
/// What a host might add.
class CrewExtension : public AxUserExtensionOf<CrewExtension, "crew-extension">
{
public:
    using AxUserExtensionOf::AxUserExtensionOf;
    std::list<AxString> scriptObjectKinds() const override
    {
        std::list<AxString> kinds = AxUserExtensionOf::scriptObjectKinds();
        kinds.push_back("Crew");
        return kinds;
    }
    AxRwReal fatigue{{"fatigue", "s", "How long the crew is on duty."}, registry()};
    AxRwNLengthStringVector names{{"names", "", "Who they are."}, registry()};
};

/// A kind of crew.
class PilotExtension : public AxUserExtensionOf<PilotExtension, "pilot-extension", CrewExtension>
{
public:
    using AxUserExtensionOf::AxUserExtensionOf;
    AxRwBoolean certified{{"certified", "", "Whether they may fly."}, registry()};
};

class AxZedStateRepositoryUserExtensionTest : public RecordFixture
{
protected:
    AxZedStateRepositoryUserExtensionTest()
    {
        AxZedStateRepositoryUserExtension::factory()->addCreator("crew-extension", &CrewExtension::creator);
        AxZedStateRepositoryUserExtension::factory()->addCreator("pilot-extension", &PilotExtension::creator);
    }
    RecordPtr record() { return RecordPtr(AxZedObjectParameters::createParameters("zed-object-param")); }

    static constexpr char const* theText = "(m1\n  (parameter-type \"zed-object-param\")\n"
                                           "  (bounding-geometry-type 2)\n"
                                           "  (state-repository-extension-type \"pilot-extension\")\n"
                                           "  (user-extension\n    (fatigue 3600.0)\n    (names \"Ann\" \"Bo\")\n"
                                           "    (certified true)))\n";
};
} // namespace

TEST_F(AxZedStateRepositoryUserExtensionTest, KeywordsOfAHostAreReadAndWrittenWithTheRecord)
{
    RecordPtr const read = record();
    ASSERT_TRUE(readFrom(*read, theText));
    auto const* const pilots = dynamic_cast<PilotExtension const*>(read->stateRepositoryUserExtension());
    ASSERT_TRUE(pilots);
    EXPECT_EQ(pilots->fatigue.value(), 3600.0);
    EXPECT_TRUE(pilots->certified.value());
    EXPECT_EQ(read->writtenText(), theText);

    RecordPtr const clone(read->clone("m1", nullptr));
    EXPECT_TRUE(clone->equals(*read));
    EXPECT_EQ(clone->writtenText(), theText);
    EXPECT_TRUE(findings.empty());
}

TEST_F(AxZedStateRepositoryUserExtensionTest, TheTreeFormSaysTheSame)
{
    RecordPtr const read = record();
    ASSERT_TRUE(readFrom(*read, theText));
    RecordPtr const back = record();
    EXPECT_TRUE(back->fromXml(read->toXml())) << read->toXml().string();
    EXPECT_EQ(back->writtenText(), theText) << read->toXml().string();
    EXPECT_TRUE(findings.empty());
}

TEST_F(AxZedStateRepositoryUserExtensionTest, TheRecordsOwnVariablesAreKnown)
{
    constexpr char const* text = "(m1 (parameter-type \"zed-object-param\") (variable-bindings (rest 7.0))"
                                 " (state-repository-extension-type \"crew-extension\")"
                                 " (user-extension (fatigue $rest)))";
    RecordPtr const read = record();
    ASSERT_TRUE(readFrom(*read, text));
    RecordPtr const byCells = created(text);
    for (AxZedObjectParameters const* each : {read.get(), byCells.get()})
    {
        auto const* const crew = dynamic_cast<CrewExtension const*>(each->stateRepositoryUserExtension());
        ASSERT_TRUE(crew);
        EXPECT_EQ(crew->fatigue.value(), 7.0);
    }
}

TEST_F(AxZedStateRepositoryUserExtensionTest, ACreatorThatThrowsCostsTheExtensionAlone)
{
    AxZedStateRepositoryUserExtension::factory()->addCreator(
        "thrower", [](AxString const&) -> AxZedStateRepositoryUserExtension* { throw std::runtime_error("no crew"); });
    RecordPtr const read = created("(m1 (parameter-type \"zed-object-param\") (mass 3.0)"
                                   " (state-repository-extension-type \"thrower\") (user-extension (fatigue 1.0)))");
    ASSERT_TRUE(read);
    EXPECT_EQ(read->mass(), 3.0);
    EXPECT_EQ(read->stateRepositoryUserExtension(), nullptr);
    EXPECT_NE(read->writtenText().find("(user-extension (fatigue 1.0))"), std::string::npos);
    EXPECT_NE(warnings.text().find("Cannot create state repository user extension\n"), std::string::npos);
}

TEST_F(AxZedStateRepositoryUserExtensionTest, UnknownKeywordsStayWithTheExtension)
{
    RecordPtr const read = record();
    readFrom(*read, "(m1 (user-extension (rank \"major\") (fatigue 1.0))"
                    " (state-repository-extension-type \"crew-extension\"))");
    ASSERT_EQ(findings.size(), 1U);
    EXPECT_EQ(findings[0].code, "unknown-keyword");
    EXPECT_NE(read->writtenText().find("(user-extension\n    (rank \"major\")\n    (fatigue 1.0))"), std::string::npos);
}

TEST_F(AxZedStateRepositoryUserExtensionTest, ScriptsMayAskForTheKindsOfTheBaseAndOfTheHost)
{
    std::list<AxString> const base{"ScriptZedObject", "Location3D", "Vector3D", "ScriptComponentSystem", "LuaPathJob"};
    EXPECT_EQ(AxZedStateRepositoryUserExtension("x", nullptr).scriptObjectKinds(), base);
    EXPECT_EQ(PilotExtension("x", nullptr).scriptObjectKinds().back(), "Crew");
    EXPECT_EQ(PilotExtension("x", nullptr).type(), "pilot-extension");
}
