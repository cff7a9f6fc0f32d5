#include "AxDiagnostic.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "AxSinkScope.h"

namespace
{
AxDiagnostic unknownKeyword()
{
    return {AxSeverity::Warning,       "unknown-keyword",       "m1.ope", 12, 34, "m1/hull",
            "unknown keyword \"mas\"", "did you mean \"mass\"?"};
}

std::string_view nearest(std::string_view word, std::vector<std::string_view> const& candidates)
{
    return axNearest(word, candidates);
}
} // namespace

TEST(AxDiagnostic, PrintsWhatIsKnown)
{
    AxDiagnostic diagnostic = unknownKeyword();
    EXPECT_EQ(diagnostic.format(),
              "m1.ope:12:34: warning: unknown keyword \"mas\"; did you mean \"mass\"? [unknown-keyword]");
    diagnostic.column = 0;
    diagnostic.hint.clear();
    diagnostic.severity = AxSeverity::Info;
    EXPECT_EQ(diagnostic.format(), "m1.ope:12: info: unknown keyword \"mas\" [unknown-keyword]");
    diagnostic.line = 0;
    diagnostic.code.clear();
    EXPECT_EQ(diagnostic.format(), "m1.ope: info: unknown keyword \"mas\"");
    diagnostic.file.clear();
    diagnostic.text = "a\nb\x1B[1m";
    EXPECT_EQ(diagnostic.format(), "info: a b [1m");
    diagnostic.text = "\xC3\xA4 \xE2\x82\xAC \xF0\x9F\x9A\x80|\xFF\xC2\x9B|\xC0\x80\xE4z\xED\xA0\x80\xE2\x82";
    EXPECT_EQ(diagnostic.format(), "info: \xC3\xA4 \xE2\x82\xAC \xF0\x9F\x9A\x80|\\xff\\xc2\\x9b|"
                                   "\\xc0\\x80\\xe4z\\xed\\xa0\\x80\\xe2\\x82");
}

TEST(AxDiagnostic, PrintsTextAndEscapesWhatIsNone)
{
    struct Case
    {
        char const* text;
        char const* printed;
    };
    // The outermost characters of each length, and what stands just beyond them.
    for (auto const& [text, printed] : {Case{"\x7F~", " ~"},
                                        {"\xC2\xA0\xDF\xBF", "\xC2\xA0\xDF\xBF"},
                                        {"\xC2\x9F", "\\xc2\\x9f"},
                                        {"\xC1\xBF", "\\xc1\\xbf"},
                                        {"\xE0\xA0\x80\xEF\xBF\xBF", "\xE0\xA0\x80\xEF\xBF\xBF"},
                                        {"\xE0\x9F\xBF", "\\xe0\\x9f\\xbf"},
                                        {"\xED\x9F\xBF\xEE\x80\x80", "\xED\x9F\xBF\xEE\x80\x80"},
                                        {"\xED\xA0\x80", "\\xed\\xa0\\x80"},
                                        {"\xE1\x80\xC0", "\\xe1\\x80\\xc0"},
                                        {"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF", "\xF0\x90\x80\x80\xF4\x8F\xBF\xBF"},
                                        {"\xF0\x8F\xBF\xBF", "\\xf0\\x8f\\xbf\\xbf"},
                                        {"\xF4\x90\x80\x80", "\\xf4\\x90\\x80\\x80"},
                                        {"\xF5\x80\x80\x80", "\\xf5\\x80\\x80\\x80"}})
    {
        AxDiagnostic diagnostic;
        diagnostic.text = text;
        EXPECT_EQ(diagnostic.format(), std::string("error: ") + printed);
    }
}

TEST(AxDiagnostics, ReportsToTheSinkAndInOneLine)
{
    AxSinkScope warnings(AxWarn), information(AxInfo);
    std::vector<std::string> codes;
    auto const previous = AxDiagnostics::setSink([&](AxDiagnostic const& found) { codes.push_back(found.code); });
    AxDiagnostics::report(unknownKeyword());
    AxDiagnostics::report({.severity = AxSeverity::Info, .code = "kept", .text = "kept"});
    AxDiagnostics::reportStated(unknownKeyword(), "Stated text\n");
    AxDiagnostics::setSink(previous);
    EXPECT_EQ(codes, (std::vector<std::string>{"unknown-keyword", "kept", "unknown-keyword"}));
    EXPECT_EQ(warnings.text(), unknownKeyword().format() + "\nStated text\n");
    EXPECT_EQ(information.text(), "info: kept [kept]\n" + unknownKeyword().format() + "\n");
}

TEST(AxDiagnostics, FillsInTheFileThatIsBeingRead)
{
    AxSinkScope warnings(AxWarn);
    AxSourceScope const outer(AxFilename("a.opd"));
    {
        AxSourceScope const inner(AxFilename(".\\b.ope"));
        AxDiagnostics::report({.line = 1, .text = "inner"});
    }
    AxDiagnostics::report({.text = "outer"});
    EXPECT_EQ(warnings.text(), "b.ope:1: error: inner\na.opd: error: outer\n");
}

TEST(AxDiagnostics, DropsWhatIsFoundAtASettledPlaceButForStatedTexts)
{
    AxSinkScope warnings(AxWarn);
    AxSourceScope const outer(AxFilename("a.opd"));
    {
        AxSourceScope const inner(AxFilename("b.ope"));
        AxSourceScope const again(AxFilename("a.opd"));
        AxSourceScope::settle(2, 5);
        AxDiagnostics::report({.file = "b.ope", .line = 2, .column = 5, .text = "of another file"});
    }
    AxDiagnostics::report({.line = 2, .column = 5, .text = "dropped"});
    AxDiagnostics::reportStated({.line = 2, .column = 5, .text = "dropped"}, "stated\n");
    AxDiagnostics::report({.line = 2, .column = 6, .text = "beside"});
    EXPECT_EQ(warnings.text(), "b.ope:2:5: error: of another file\nstated\na.opd:2:6: error: beside\n");
}

TEST(AxDiagnostics, SurvivesASinkThatThrows)
{
    AxSinkScope warnings(AxWarn);
    auto const previous = AxDiagnostics::setSink([](AxDiagnostic const&) { throw std::runtime_error("sink"); });
    AxDiagnostics::reportStated({.text = "x"}, "stated\n");
    AxDiagnostics::setSink(previous);
    EXPECT_EQ(warnings.text(), "stated\n");
}

TEST(axNearest, SuggestsWhatIsAtMostThreeEditsAway)
{
    EXPECT_EQ(nearest("mas", {"max", "mass", "min"}), "max");
    EXPECT_EQ(nearest("max-sped", {"max-slope", "max-speed"}), "max-speed");
    EXPECT_EQ(nearest("abcdef", {"abcxyz"}), "abcxyz");
    EXPECT_EQ(nearest("abcdef", {"abwxyz"}), "");
    EXPECT_EQ(nearest("ab", {"xy", "abcd"}), "");
    EXPECT_EQ(nearest("ab", {"xb", "ax"}), "xb");
    EXPECT_EQ(nearest("help", {"check", "set"}), "");
    EXPECT_EQ(nearest("", {"a"}), "");
    EXPECT_EQ(nearest("mass", {"mass"}), "mass");
    EXPECT_EQ(nearest("abcd", {"", "xabcd"}), "xabcd");
    EXPECT_EQ(nearest(std::string(1000, 'a'), {std::string_view("a")}), "");
}
