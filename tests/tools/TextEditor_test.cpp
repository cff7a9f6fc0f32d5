#include "TextEditor.h"

#include "Edited.h"
#include "ExampleTexts.h"

#include <gtest/gtest.h>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace
{
std::string record(std::string const& items)
{
    return "(a (parameter-type \"moving-object-param\")" + items + ")\n";
}

std::string editedText(std::string const& text, std::string const& edit, bool force = false)
{
    TextReading reading("a.ope");
    TextEditor editor("a.ope", text, reading, force);
    return edited(editor, text, edit);
}

struct ValuePath
{
    std::string path;
    std::string value;
};

/// Paths of all lists that hold atoms alone, below a list.
void collectValues(TextItem list, std::string const& path, std::vector<ValuePath>& out)
{
    std::map<std::string, int> counts;
    for (TextItem item = list.firstValue(); item; item = item.next())
    {
        ++counts[item.head()];
    }
    std::map<std::string, int> seen;
    for (TextItem item = list.firstValue(); item; item = item.next())
    {
        std::string const head = item.head();
        if (!item.isList() || head.empty() || head.ends_with("-type") || head.find_first_of("/[") != std::string::npos)
        {
            continue;
        }
        std::string name = path + head;
        if (counts[head] > 1)
        {
            name += "[" + std::to_string(++seen[head]) + "]";
        }
        TextItem value = item.firstValue();
        while (value && !value.isList())
        {
            value = value.next();
        }
        if (value)
        {
            collectValues(item, name + "/", out);
        }
        else if (item.firstValue())
        {
            std::size_t const begin = item.firstValue().begin() - item.begin();
            out.push_back({name, std::string(item.source().substr(begin, item.source().size() - begin - 1))});
        }
    }
}
} // namespace

TEST(TextEditor, ChangesTheBytesOfTheValueAlone)
{
    struct
    {
        std::string before;
        std::string edit;
        std::string after;
    } const cases[] = {
        {"\n  (mass 5.0) ; kg\n", "mass=6", "\n  (mass 6) ; kg\n"},
        {"(mass\t5.0 )", "mass= 6e3 ", "(mass\t6e3 )"},
        {"(mass)", "mass=6", "(mass 6)"},
        {"(mass 5.0)(mass 7.0)", "mass=6", "(mass 5.0)(mass 6)"},
        {"(category tank)", "category=light tank", "(category \"light tank\")"},
        {"(category \"tank\")", "category=a \"b\" \\c", "(category \"a \\\"b\\\" \\\\c\")"},
        {"(category \"tank\")", "category=\"b\"", "(category \"b\")"},
        {"(category \"tank\")", "category=", "(category \"\")"},
        {"(left-support 1.0 ; x\n 2.0)", "left-support=1.0 3", "wrong-kind"},
        {"(other-support 1.0 ; x\n 2.0 3.0)", "other-support=1.0 4 3.0", "(other-support 1.0 ; x\n 4 3.0)"},
        {"(categories a ; x\n b)", "categories=a", "unknown-keyword"},
        {"(mass 5.0)", "mass=heavy", "wrong-kind"},
        {"(mass 5.0)", "mass=6 7", "extra-value"},
        {"(mass 5.0)", "mass=6)(mass 7", "no-value"},
        {"(mass 5.0)", "mass=6 ; x", "no-value"},
        {"(mass 5.0)", "mass=-6", "out-of-range"},
        {"(mass 5.0)", "mass=$m", "unbound-variable"},
        {"(mass 5.0)", "mas=6", "unknown-keyword"},
        {"(hue red)", "hue=blue", "unknown-keyword"},
        {"(mass 5.0)", "mass/x=6", "unknown-keyword"},
        {"(mass 5.0)", "/mass=6", "no-path"},
        {"(dr-thresholds (translation 1.0))", "dr-thresholds=6", "no-value"},
        {"(dr-thresholds (translation 1.0))", "dr-thresholds/translation=6", "(dr-thresholds (translation 6))"},
        {"(sensor-signatures (\"radar\" 1.0))", "sensor-signatures/radar=2", "(sensor-signatures (\"radar\" 2))"},
        {"(sensor-signatures (\"radar\" 1.0))", "sensor-signatures/sonar=2",
         "(sensor-signatures (\"radar\" 1.0) (\"sonar\" 2))"},
        {"(sensor-signatures (\"radar\" 1.0))", "sensor-signatures/sonar=loud", "wrong-kind"},
        {"(parameter-data (crew AxRwInt 4))", "parameter-data/crew=5", "(parameter-data (crew AxRwInt 5))"},
        {"(parameter-data (crew AxRwInt 4))", "parameter-data/crew=AxRwReal 5", "(parameter-data (crew AxRwReal 5))"},
        {"(parameter-data (crew AxRwInt 4))", "parameter-data/crew=many", "wrong-kind"},
        {"(parameter-data (crew AxRwInt 4))", "parameter-data/name=AxRwString \"a\"",
         "(parameter-data (crew AxRwInt 4) (name AxRwString \"a\"))"},
        {"(connections (connect a b) (connect c d))", "connections/connect=e f", "no-path"},
        {"(connections (connect a b) (connect c d))", "connections/connect[3]=e f", "no-path"},
        {"(connections (connect a:b c:d) (connect c:d e:f))", "connections/connect[1]=e:f g:h",
         "(connections (connect e:f g:h) (connect c:d e:f))"}};
    for (auto const& [before, edit, after] : cases)
    {
        bool const isFault = after.find('(') == std::string::npos;
        EXPECT_EQ(editedText(record(before), edit), isFault ? after : record(after)) << before << edit;
    }
    EXPECT_EQ(editedText(record("(hue red)"), "hue=blue", true), record("(hue blue)"));
    EXPECT_EQ(editedText(record("(mass 5.0)"), "mass=heavy", true), record("(mass heavy)"));
    EXPECT_EQ(editedText(record("(mass 5.0)"), "mass=6)(x", true), "no-value");
}

TEST(TextEditor, InsertsInTheLayoutOfTheNeighbours)
{
    struct
    {
        std::string before;
        std::string edit;
        std::string after;
    } const cases[] = {
        {"", "mass=6", " (mass 6)"},
        {"\r\n\t(category c) ; x\r\n\t(max-speed 1.0)", "mass=6",
         "\r\n\t(category c) ; x\r\n\t(mass 6)\r\n\t(max-speed 1.0)"},
        {"\n  (max-speed 1.0)", "mass=6", "\n  (mass 6)\n  (max-speed 1.0)"},
        {"\n  ; fast\n  (max-speed 1.0)", "mass=6", "\n  (mass 6)\n  ; fast\n  (max-speed 1.0)"},
        {"\n  (mass 1.0)", "max-speed=6", "\n  (mass 1.0)\n  (max-speed 6)"},
        {"\n  (mass 1.0) ; kg\n", "max-speed=6", "\n  (mass 1.0) ; kg\n  (max-speed 6)\n"},
        {"\n  (mass 1.0)\n  (hue red)", "max-speed=6", "\n  (mass 1.0)\n  (max-speed 6)\n  (hue red)"},
        {"\n  (mass 1.0)", "dr-thresholds/translation=6", "\n  (dr-thresholds (translation 6))\n  (mass 1.0)"},
        {"\n  (dr-thresholds)\n  (mass 1.0)", "dr-thresholds/translation=6",
         "\n  (dr-thresholds\n    (translation 6))\n  (mass 1.0)"},
        {"\n  (mass 1.0)", "variable-bindings/x=6", "\n  (variable-bindings (x 6))\n  (mass 1.0)"},
        {"(mass 1.0)", "sensors/radar/mass=1", "unknown-keyword"},
        {"(mass 1.0)", "max-sped=1", "unknown-keyword"},
        {"(mass 1.0)", "sensors=1", "no-value"}};
    for (auto const& [before, edit, after] : cases)
    {
        bool const isFault = after.find('(') == std::string::npos;
        EXPECT_EQ(editedText(record(before), edit), isFault ? after : record(after)) << before << edit;
    }
    EXPECT_EQ(editedText(record("(mass 1.0)"), "hue=red", true), record("(mass 1.0) (hue red)"));
}

TEST(TextEditor, TakesOutAnItemWithItsLine)
{
    struct
    {
        std::string before;
        std::string edit;
        std::string after;
    } const cases[] = {{"\n  (mass 1.0)\n  (max-speed 2.0)", "-mass", "\n  (max-speed 2.0)"},
                       {"\r\n  (mass 1.0)\r\n  (max-speed 2.0)", "-max-speed", "\r\n  (mass 1.0)"},
                       {"\n\n  (mass 1.0)\n  (max-speed 2.0)", "-mass", "\n\n  (max-speed 2.0)"},
                       {"\n  (mass 1.0) ; kg\n  (max-speed 2.0)", "-mass", "\n  ; kg\n  (max-speed 2.0)"},
                       {"\n  ; note\n  (mass 1.0)", "-mass", "\n  ; note\n  "},
                       {" (mass 1.0) (max-speed 2.0)", "-mass", " (max-speed 2.0)"},
                       {"(mass 1.0)(max-speed 2.0)", "-mass", "(max-speed 2.0)"},
                       {"(mass 1.0)(mass 2.0)", "-mass", "(mass 1.0)"},
                       {"(mass ; kg\n 1.0)", "-mass", "comment-lost"},
                       {"(mass 1.0)", "-max-speed", "unknown-keyword"},
                       {"(mass 1.0)", "-parameter-type", "unreadable"},
                       {"(variable-bindings (m 1.0)) (mass $m)", "-variable-bindings/m", "unbound-variable"}};
    for (auto const& [before, edit, after] : cases)
    {
        bool const isFault = after.find_first_of("(\n") == std::string::npos;
        EXPECT_EQ(editedText(record(before), edit), isFault ? after : record(after)) << before << edit;
    }
}

TEST(TextEditor, KnowsEntriesOfADatabaseByTheirTypes)
{
    std::string const text = "(parameter-database\n  (parameter-files ; all\n"
                             "    (parameter-entry (object-type 1 1 1 1 1 1 1 1) (filename \"a.ope\"))\n"
                             "    (parameter-entry (object-type 1 1 1 1 1 1 -1 -1) (filename \"b.ope\"))))\n";
    EXPECT_EQ(editedText(text, "parameter-files/1:1:1:1:1:1:-1:-1/filename=c d.ope"),
              std::string(text).replace(text.find("b.ope"), 5, "c d.ope"));
    EXPECT_EQ(editedText(text, "parameter-files/1:1:1:1:1:1:2:2/filename=c.ope"), "unknown-keyword");
    EXPECT_EQ(editedText(text, "version=101"), std::string(text).insert(19, "\n  (version 101)"));
}

TEST(TextEditor, GivesTheSameBytesWhenAValueIsSetBack)
{
    std::mt19937 random(20);
    for (auto const& [file, text] : exampleTexts())
    {
        TextTree const tree(text);
        std::vector<ValuePath> values;
        if (text.starts_with("<?xml") || (collectValues(tree.root(), "", values), values.empty()))
        {
            continue;
        }
        TextReading reading(file);
        TextEditor editor(file, text, reading, true);
        for (int round = 0; round < 2; ++round)
        {
            auto const& [path, value] = values[random() % values.size()];
            EXPECT_TRUE(editor.set(path, "0 1 0")) << file << " " << path << " " << editor.fault().format();
            EXPECT_NE(editor.text(), text) << file << " " << path;
            EXPECT_TRUE(editor.set(path, value)) << file << " " << path << " " << editor.fault().format();
            EXPECT_EQ(editor.text(), text) << file << " " << path;
        }
    }
}
