#include "Source.h"

#include "AxEnvXMLReader.h"
#include "AxReaderWriter.h"
#include "AxlFunctions.h"
#include "ElementSource.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

namespace
{
AxReaderWriter const theReader(AxSymbolString(), nullptr);

std::vector<SourceStep> stepsTo(std::vector<std::pair<char const*, int>> const& names)
{
    std::vector<SourceStep> steps;
    for (auto const& [name, occurrence] : names)
    {
        steps.push_back({AxSymbolString(std::string_view(name)), &theReader, occurrence});
    }
    return steps;
}

/// The column of what is found in either notation; 0 for nothing.
template <class Found>
unsigned columnOf(Found const* found)
{
    return found != nullptr ? found->column() : 0;
}
} // namespace

// Lists of more than a few items are searched in another way.
TEST(Source, FindsInLongListsWhatItFindsInShortOnes)
{
    constexpr int last = SourceStep::theLast;
    std::vector<std::vector<std::pair<char const*, int>>> const paths = {{{"a", last}},
                                                                         {{"a", 0}},
                                                                         {{"a", 1}},
                                                                         {{"a", 2}},
                                                                         {{"a", 3}},
                                                                         {{"b", last}},
                                                                         {{"b", 1}},
                                                                         {{"x", last}},
                                                                         {{"a", last}, {"c", last}},
                                                                         {{"a", 1}, {"c", last}},
                                                                         {{"a", 0}, {"c", last}},
                                                                         {{"b", last}, {"c", last}}};
    std::string const items = "(r (a 1) (b) (a (c 2)) (a (d 3)) 4 (b (c (e 5)) (c 6)) ";
    std::string const elements = "<simObject><platform><l name=\"a\" v=\"1\"/><l name=\"b\"/>"
                                 "<l name=\"a\"><l name=\"c\"/></l><l name=\"a\"><l name=\"d\"/></l>"
                                 "<l name=\"b\"><l name=\"c\"/><l name=\"c\"/></l>";
    std::string fillers;
    std::string fillerElements;
    for (int i = 0; i < 40; ++i)
    {
        fillers += "(f" + std::to_string(i) + " 1)";
        fillerElements += "<l name=\"f" + std::to_string(i) + "\"/>";
    }
    auto const source = [](std::string text)
    {
        AxlInputStream stream(std::move(text));
        return Source(AxcRead(stream));
    };
    Source const shortText = source(items + ")");
    Source const longText = source(items + fillers + ")");
    auto const element = [](std::string const& text)
    { return ElementSource(AxEnvXMLReader::readText(text, AxFilename("e"))->root()); };
    std::string const set = "<variableBindings><l name=\"x\"/></variableBindings>";
    std::string const end = "</platform></simObject>";
    ElementSource const shortElement = element(elements + end);
    ElementSource const longElement = element(elements + fillerElements + end);
    ElementSource const shortWithSet = element(elements + set + end);
    ElementSource const longWithSet = element(elements + set + fillerElements + end);
    int found = 0;
    for (auto const& path : paths)
    {
        std::vector<SourceStep> const steps = stepsTo(path);
        EXPECT_EQ(columnOf(longText.value(steps)), columnOf(shortText.value(steps))) << path.front().first;
        EXPECT_EQ(columnOf(longElement.value(steps)), columnOf(shortElement.value(steps))) << path.front().first;
        EXPECT_EQ(columnOf(longWithSet.value(steps)), columnOf(shortWithSet.value(steps))) << path.front().first;
        found += (shortText.value(steps) != nullptr) + (shortElement.value(steps) != nullptr) +
                 (shortWithSet.value(steps) != nullptr);
    }
    EXPECT_EQ(found, 9 + 9 + 10);
}
