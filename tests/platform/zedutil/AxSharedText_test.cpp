#include "AxSharedText.h"

#include "AxRwString.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace
{
AxSharedText shared(std::string_view text)
{
    return AxSharedText(text);
}

std::string textOf(AxSharedText const& text)
{
    return static_cast<AxString const&>(text).string();
}
} // namespace

TEST(AxSharedTextTest, KeepsEqualTextsOnce)
{
    AxSharedText const first = shared("hull"), second = shared({"hulls", 4}), other = shared("turret");
    EXPECT_TRUE(first == second);
    EXPECT_FALSE(first == other);
    EXPECT_EQ(&static_cast<AxString const&>(first), &static_cast<AxString const&>(second));
    EXPECT_TRUE(AxSharedText() == shared(""));
}

TEST(AxSharedTextTest, FindsEachOfManyTexts)
{
    std::vector<AxSharedText> texts;
    for (int i = 0; i < 3000; ++i)
    {
        texts.push_back(shared("text " + std::to_string(i)));
    }
    for (int i = 0; i < 3000; ++i)
    {
        auto const at = static_cast<std::size_t>(i);
        EXPECT_EQ(textOf(texts[at]), "text " + std::to_string(i));
        EXPECT_TRUE(shared("text " + std::to_string(i)) == texts[at]);
    }
}

TEST(AxSharedTextTest, TakesItsOwnText)
{
    AxSharedText text = shared("a text that no other value holds");
    text = static_cast<AxString const&>(text);
    EXPECT_EQ(textOf(text), "a text that no other value holds");
    AxRwString member("k", nullptr);
    member = "another such text";
    member.setValue(member.value());
    EXPECT_EQ(member.value(), "another such text");
}

TEST(AxSharedTextTest, HoldsWhatItWasGivenWhileOthersComeAndGo)
{
    std::mt19937 random(3);
    std::vector<AxSharedText> texts(600);
    std::vector<std::string> expected(texts.size());
    for (int step = 0; step < 20000; ++step)
    {
        std::size_t const to = random() % texts.size(), from = random() % texts.size();
        switch (random() % 3)
        {
        case 0:
            expected[to] = std::to_string(random() % 2000);
            texts[to] = shared(expected[to]);
            break;
        case 1:
            expected[to] = expected[from];
            texts[to] = texts[from];
            break;
        default:
            expected[to].clear();
            texts[to] = AxSharedText();
        }
    }
    for (std::size_t i = 0; i < texts.size(); ++i)
    {
        EXPECT_EQ(textOf(texts[i]), expected[i]);
        EXPECT_TRUE(texts[i] == shared(expected[i]));
    }
}
