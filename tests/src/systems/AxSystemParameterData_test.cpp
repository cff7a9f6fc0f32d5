#include "AxDefaultSystemParameterDataFactory.h"
#include "AxSinkScope.h"
#include "AxSystemArtPartParameterData.h"
#include "AxSystemBoolParameterData.h"
#include "AxSystemIntParameterData.h"
#include "AxSystemOrientationParameterData.h"
#include "AxSystemParameterDataList.h"
#include "AxSystemSensitivityParameterData.h"
#include "AxSystemStringParameterData.h"
#include "AxSystemVectorParameterData.h"
#include "platform/zedutil/Reading.h"

#include <gtest/gtest.h>

#include <memory>

namespace
{
using Made = std::unique_ptr<AxSystemParameterData>;

Made make(char const* type)
{
    return Made(AxSystemParameterData::createSystemParamterData(type));
}

struct ParameterKind
{
    char const* type;
    char const* variableType;
    char const* rollUpRule;
    char const* value; // of its own keyword
} const theParameterKinds[] = {
    {"vector-parameter-data", "AxRwVector", "none", "(default-value 1.0 2.0 3.0)"},
    {"int-parameter-data", "AxRwInt", "sum", "(default-value 7)"},
    {"real-parameter-data", "AxRwReal", "sum", "(default-value 2.5)"},
    {"sensitivity-parameter-data", "AxRwReal", "sum", "(default-value 2.5)"},
    {"art-part-parameter-data", "AxRwInt", "none", "(art-part-category \"turret\")"},
    {"bool-parameter-data", "AxRwBoolean", "none", "(default-value true)"},
    {"tait-bryan-parameter-data", "AxRwTaitBryan", "none", "(default-value 0.5 0.25 0.125)"},
    {"string-parameter-data", "AxRwString", "none", "(default-value \"text\")"},
};
} // namespace

TEST(AxSystemParameterData, FactoryKnowsTheKindsInOrder)
{
    std::list<AxString> expected;
    for (ParameterKind const& kind : theParameterKinds)
    {
        expected.emplace_back(kind.type);
    }
    EXPECT_EQ(AxSystemParameterData::factory()->keys(), expected);
    EXPECT_EQ(make("int-parameter"), nullptr);
    EXPECT_EQ(make("Int-parameter-data"), nullptr);
}

TEST(AxSystemParameterData, NewRecordsWriteTheirFourDefaults)
{
    for (ParameterKind const& kind : theParameterKinds)
    {
        Made const made = make(kind.type);
        ASSERT_NE(made, nullptr) << kind.type;
        EXPECT_EQ(made->parameterType(), AxString(kind.type));
        EXPECT_EQ(made->name(), AxString(kind.type));
        EXPECT_EQ(made->writtenText(), std::string("(") + kind.type + "\n  (variable-type \"" + kind.variableType +
                                           "\")\n  (list-display 0)\n  (allow-edit true)\n  (roll-up-rule \"" +
                                           kind.rollUpRule + "\"))\n");
        EXPECT_TRUE(made->listItems().isNull());
    }
}

TEST(AxSystemParameterData, EveryKindRoundTripsAndClones)
{
    for (ParameterKind const& kind : theParameterKinds)
    {
        std::string const text = std::string("(") + kind.type +
                                 "\n  (parameter-name \"p\")\n  (variable-type \"V\")\n" +
                                 "  (display-label \"l\")\n  (display-units \"u\")\n  (source-units \"s\")\n" +
                                 "  (list-items \"a=1;b\")\n  (list-display 2)\n  (allow-edit false)\n" +
                                 "  (roll-up-rule \"max\")\n  " + kind.value + ")\n";
        Made const made = make(kind.type);
        readFrom(*made, text);
        EXPECT_EQ(made->writtenText(), text);
        made->setName("other name");
        Made const clone(made->clone());
        EXPECT_EQ(clone->name(), AxString("other name"));
        EXPECT_EQ(clone->parameterType(), AxString(kind.type));
        EXPECT_EQ(clone->writtenText(), text);
        EXPECT_TRUE(*clone == *made);
        made->reset();
        EXPECT_EQ(made->rollUpRule(), AxString(kind.rollUpRule));
        EXPECT_EQ(made->variableType(), AxString(kind.variableType));
    }
}

TEST(AxSystemParameterData, PresentationTakesNoPartInEquality)
{
    AxSystemIntParameterData a("a", nullptr);
    AxSystemIntParameterData b("b", nullptr);
    b.setListItems("x;y");
    b.setListDisplay(3);
    b.setAllowEdit(false);
    EXPECT_TRUE(a == b);
    using Setter = void (AxSystemParameterData::*)(AxString const&);
    for (Setter setter : {&AxSystemParameterData::setParameterName, &AxSystemParameterData::setVariableType,
                          &AxSystemParameterData::setDisplayLabel, &AxSystemParameterData::setDisplayUnits,
                          &AxSystemParameterData::setRollUpRule, &AxSystemParameterData::setSourceUnits})
    {
        AxSystemIntParameterData changed(a);
        (changed.*setter)("changed");
        EXPECT_FALSE(a == changed);
    }
    b.setDefaultValue(1);
    EXPECT_FALSE(a == b);
}

TEST(AxSystemParameterData, KindsCompareTheirOwnMembers)
{
    AxSystemVectorParameterData vector("v", nullptr);
    AxSystemVectorParameterData otherFrame(vector);
    otherFrame.setRelativeTo("hull");
    EXPECT_FALSE(vector == otherFrame);
    vector = otherFrame;
    EXPECT_TRUE(vector == otherFrame);
    EXPECT_EQ(vector.relativeTo(), "hull");

    AxSystemArtPartParameterData part("p", nullptr);
    AxSystemArtPartParameterData otherPart(part);
    otherPart.setArtPartCategory("turret");
    EXPECT_TRUE(part == otherPart);

    AxSystemRealParameterData const real("r", nullptr);
    AxSystemSensitivityParameterData const sensitivity("s", nullptr);
    AxSystemParameterData const& anyReal = real;
    AxSystemParameterData const& anySensitivity = sensitivity;
    EXPECT_TRUE(anyReal == anySensitivity);
    EXPECT_TRUE(anySensitivity == anyReal);

    AxSystemIntParameterData number("n", nullptr);
    number.setRollUpRule("none");
    AxSystemParameterData const& anyNumber = number;
    AxSystemParameterData const& anyPart = part;
    EXPECT_FALSE(anyNumber == anyPart);
    EXPECT_FALSE(anyPart == anyNumber);
}

TEST(AxSystemParameterData, DefaultGoesToTheMatchingKindOnly)
{
    AxSystemRealParameterData real("r", nullptr);
    real.setDefaultValue(2.5);
    AxRwReal target("t", nullptr);
    real.assignDefaultValueToReaderWriter(&target);
    EXPECT_EQ(target.value(), 2.5);
    EXPECT_FALSE(target.valueSpecified());

    AxRwInt whole("t", nullptr);
    whole = 4;
    AxSinkScope warnings(AxWarn);
    real.assignDefaultValueToReaderWriter(&whole);
    real.assignDefaultValueToReaderWriter(nullptr);
    AxSystemArtPartParameterData("p", nullptr).assignDefaultValueToReaderWriter(&whole);
    EXPECT_EQ(whole.value(), 4);
    EXPECT_EQ(warnings.text(), "");
}

TEST(AxSystemParameterData, SplitsPickLists)
{
    struct
    {
        char const* items;
        std::vector<AxString> labels;
        std::vector<AxString> values;
    } const cases[] = {
        {"", {}, {}},
        {"a=1;b;c=3=4;", {"a", "b", "c"}, {"1", "b", "c"}},
        {";; x = y ;", {" x "}, {" y "}},
        {"a=;=b", {"a", ""}, {"", "b"}},
    };
    for (auto const& c : cases)
    {
        AxSystemStringParameterData data("d", nullptr);
        data.setListItems(c.items);
        std::vector<AxString> labels;
        std::vector<AxString> values;
        data.getListItems(labels, values);
        EXPECT_EQ(labels, c.labels) << c.items;
        EXPECT_EQ(values, c.values) << c.items;
    }
}

TEST(AxSystemParameterDataList, ReadsKindsByTheirHeadsAndKeepsUnknownOnes)
{
    AxSinkScope warnings(AxWarn);
    AxSystemParameterDataList list("parameter-data-list", nullptr);
    readFrom(list, "(parameter-data-list (int-parameter-data (parameter-name \"n\")) (matrix-parameter-data 1)"
                   " (bool-parameter-data (parameter-name \"b\")))");
    EXPECT_EQ(list.count(), 2);
    EXPECT_EQ(warnings.text(),
              "AxRwMultiTypeListTemplate: Cannot create content data of type \"matrix-parameter-data\"\n");
    std::string const text = list.writtenText();
    EXPECT_NE(text.find("\n  (matrix-parameter-data 1)\n  (bool-parameter-data"), std::string::npos);

    AxSystemParameterDataList copy(list);
    EXPECT_TRUE(copy == list);
    EXPECT_EQ(copy.writtenText(), text);
    (*copy.begin())->setAllowEdit(false);
    EXPECT_TRUE(copy == list);
    (*copy.begin())->setParameterName("m");
    EXPECT_FALSE(copy == list);
}
