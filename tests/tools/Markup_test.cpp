#include "Markup.h"

#include <cmath>
#include <gtest/gtest.h>

TEST(Markup, EscapesWhatEndsATextOrAnAttribute)
{
    EXPECT_EQ(markup("</a href=\"x\" id='y'> & more"), "&lt;/a href=&quot;x&quot; id=&#39;y&#39;&gt; &amp; more");
}

TEST(Markup, KeepsCharactersAndReplacesWhatIsNone)
{
    struct Case
    {
        char const* text;
        char const* expected;
    };
    for (auto const& [text, expected] :
         {Case{"\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x9A\x80", "\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x9A\x80"},
          {"a\tb\nc", "a\tb\nc"},
          {"\x01|\x1B|\x7F", "\xEF\xBF\xBD|\xEF\xBF\xBD|\xEF\xBF\xBD"},
          {"\xE9t\xE9", "\xEF\xBF\xBDt\xEF\xBF\xBD"},
          {"\xEF\xBF\xBE\xEF\xBF\xBD", "\xEF\xBF\xBD\xEF\xBF\xBD"}})
    {
        EXPECT_EQ(markup(text), expected) << text;
    }
}

TEST(Markup, DrawsNumbersShort)
{
    struct Case
    {
        double value;
        char const* expected;
    };
    for (auto const& [value, expected] : {Case{0.1 + 0.2, "0.3"},
                                          {1200.0, "1200"},
                                          {-0.001, "0"},
                                          {-2.345, "-2.35"},
                                          {1e300, "1000000000"},
                                          {std::nan(""), "0"}})
    {
        EXPECT_EQ(drawn(value), expected);
    }
}
