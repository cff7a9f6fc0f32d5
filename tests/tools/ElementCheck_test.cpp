#include "AxEntityType.h"
#include "AxSimMunition.h"
#include "AxlFunctions.h"
#include "RowCheck.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <string>
#include <vector>

namespace
{
/// The line of each element that is hidden, and that of the one told to hide it.
using Hidden = std::map<unsigned, unsigned>;

Hidden hiddenIn(std::string const& table)
{
    AxlInputStream stream(table);
    AxlObjPtr const list = AxcRead(stream);
    Hidden hidden;
    checkElements(*list,
                  [&hidden](char const* code, AxlObj const& place, std::string const& text)
                  {
                      EXPECT_STREQ("hidden-entry", code);
                      hidden[place.line()] = static_cast<unsigned>(std::stoul(text.substr(text.find("line ") + 5)));
                  });
    return hidden;
}

/// Every element against every other.
template <class Key, class IsPattern, class Covers>
Hidden slowly(std::vector<Key> const& keys, IsPattern const& isPattern, Covers const& covers)
{
    Hidden hidden;
    for (std::size_t i = 0; i < keys.size(); ++i)
    {
        bool const isLate = isPattern(keys[i]);
        for (std::size_t j = isLate ? i + 1 : 0; j < (isLate ? keys.size() : i); ++j)
        {
            if (isLate ? covers(keys[j], keys[i]) : keys[j] == keys[i])
            {
                hidden.emplace(static_cast<unsigned>(i + 2), static_cast<unsigned>(j + 2));
            }
        }
    }
    return hidden;
}

bool hasWildcard(auto const& type)
{
    return std::ranges::find(type.fields(), -1) != type.fields().end();
}

TEST(ElementCheck, FindsTheHiddenTypesThatComparingAllFinds)
{
    std::mt19937 random(1);
    for (int round = 0; round < 50; ++round)
    {
        std::string table = "(table";
        std::vector<AxEntityType> types;
        for (int i = 0; i < 60; ++i)
        {
            AxEntityType::Fields fields{};
            table += "\n(entity-range (entity-type";
            for (std::int32_t& field : fields)
            {
                field = static_cast<std::int32_t>(random() % 3) - 1;
                table += ' ' + std::to_string(field);
            }
            table += "))";
            types.emplace_back(fields);
        }
        EXPECT_EQ(hiddenIn(table + ")"), slowly(types, hasWildcard<AxEntityType>,
                                                [](AxEntityType const& pattern, AxEntityType const& type)
                                                { return type.matchPattern(pattern); }));
    }
}

TEST(ElementCheck, FindsTheHiddenMunitionsThatComparingAllFinds)
{
    std::mt19937 random(1);
    constexpr char const* theParts[] = {"", "(munition-type 0 0 0 0 0 0 0)", "(munition-type 2 -1 -1 1 -1 -1 -1)",
                                        "(munition-type 2 1 0 1 1 0 0)", "(munition-type 2 -1 0 1 -1 -1 0)"};
    constexpr char const* theOthers[] = {"",
                                         "(warhead 1)",
                                         "(munition-name \"a\")",
                                         "(guidance-mode \"wire\")",
                                         "(tracer-type 2 1 0 1 1 0 0)",
                                         "(munition-name \"a\") (warhead 1)"};
    for (int round = 0; round < 50; ++round)
    {
        std::string table = "(table";
        std::vector<AxSimMunition> munitions;
        for (int i = 0; i < 40; ++i)
        {
            std::string const ammo = std::string("(ammo ") + theParts[random() % 5] + theOthers[random() % 6] + ")";
            table += "\n(ammo-entry " + ammo + ")";
            AxlInputStream stream(ammo);
            munitions.emplace_back().getSelf(AxcRead(stream), {}, {});
        }
        EXPECT_EQ(hiddenIn(table + ")"),
                  slowly(
                      munitions, [](AxSimMunition const& munition) { return hasWildcard(munition.munitionType()); },
                      [](AxSimMunition const& pattern, AxSimMunition const& munition)
                      { return pattern.matchPattern(munition); }));
    }
}
} // namespace
