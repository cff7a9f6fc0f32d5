#include "AxZedParameterDb.h"

#include "AxReaderWriterFileExtensible.h"
#include "src/objparams/RecordFixture.h"
#include "src/paramdb/DatabaseWalk.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <random>

namespace
{
/// Knows of no entry, so that none is replaced.
struct BlindDatabase : WalkedDatabase
{
    using WalkedDatabase::lookupParameters;
    AxListItem* lookupParameters(AxObjectType const&) const override { return nullptr; }
};

/// Types that collide often: some fields vary, the others are 0 or open.
class RandomTypes
{
public:
    explicit RandomTypes(unsigned seed) : myEngine(seed) {}

    int number(int from, int to) { return std::uniform_int_distribution<int>(from, to)(myEngine); }
    AxObjectType type(int lowest)
    {
        AxObjectType::Fields fields{};
        for (std::size_t i : {0U, 1U, 3U})
        {
            fields[i] = number(lowest, 1);
        }
        int const tail = number(0, 3);
        fields[7] = tail == 0 ? -1 : tail == 1 ? lowest : 0;
        return AxObjectType(fields);
    }

private:
    std::mt19937 myEngine;
};

AxObjectType typeOf(char const* text)
{
    AxObjectType type;
    EXPECT_TRUE(AxObjectType::fromString(text, type)) << text;
    return type;
}

class AxZedParameterDbTest : public RecordFixture
{
protected:
    AxZedObjectParameters* record() { return made("zed-object-param").release(); }

    WalkedDatabase db;
    AxObjectType const tank = typeOf("1:1:1:225:1:1:3:0");
    AxObjectType const tanks = typeOf("1:1:1:225:1:1:-1:-1");
    AxObjectType const vehicles = typeOf("1:1:1:-1:-1:-1:-1:-1");
};
} // namespace

TEST_F(AxZedParameterDbTest, IndexAnswersAsTheWalkDoes)
{
    for (unsigned seed = 0; seed < 400; ++seed)
    {
        WalkedDatabase random;
        Walk walk;
        RandomTypes types(seed);
        int const lowest = seed % 2 == 0 ? -2 : -1;
        // Entries that come between two looks at the list are put in their places together.
        int const looksEvery = static_cast<int>(1 + seed / 4 % 6);
        for (int change = 0; change < 60; ++change)
        {
            int const kind = types.number(0, 9);
            AxObjectType const type = types.type(lowest);
            if (kind < 7)
            {
                AxZedParameterDbEntry* const entry = newEntry(type, types.number(0, 1) == 1);
                walk.insert(entry);
                random.addParameterDbEntry(entry);
            }
            else if (kind < 9)
            {
                walk.remove(type);
                random.remove(type);
            }
            else if (seed % 4 >= 2 && !walk.entries.empty())
            {
                // The list is readable by all: a type can be changed behind the database's back.
                auto const at = static_cast<std::size_t>(types.number(0, static_cast<int>(walk.entries.size()) - 1));
                const_cast<AxZedParameterDbEntry*>(walk.entries[at])->setObjectType(type);
            }
            if (change % looksEvery != 0)
            {
                continue;
            }
            ASSERT_EQ(random.entries(), walk.entries) << "seed " << seed << ", change " << change;
            for (int i = 0; i < 12; ++i)
            {
                AxObjectType const asked = types.type(lowest);
                ASSERT_EQ(random.found(asked), walk.found(asked)) << "seed " << seed << ", " << asked.string();
                ASSERT_EQ(random.lookupParameterDbEntry(asked, nullptr), walk.found(asked)) << "seed " << seed;
            }
        }
    }
    EXPECT_EQ(warnings.text(), "");
}

TEST_F(AxZedParameterDbTest, ManyThatComeAtOnceStandInOrder)
{
    // How far the fields reach from 0: types of few values make short numbers, others need more bits than one has.
    std::array<std::int32_t, 8> const reaches[] = {
        {1, 1, 0, 3, 3, 3, 3, 0},
        {1, 1, 1, 300, 10, 10, 100, 1000},
        {0, 0, 0, 0, 0, 0, 0, 500},
        {1 << 30, 1 << 30, 1 << 30, 1 << 30, 1 << 30, 1 << 30, 1 << 30, 1 << 30},
    };
    RandomTypes random(5);
    for (auto const& reach : reaches)
    {
        for (std::size_t const count : {63U, 64U, 300U})
        {
            WalkedDatabase many;
            Walk walk;
            while (walk.entries.size() < count)
            {
                AxObjectType::Fields fields{};
                std::transform(reach.begin(), reach.end(), fields.begin(),
                               [&random](std::int32_t most) { return most > 0 ? random.number(-1, most) : 0; });
                AxZedParameterDbEntry* const entry = newEntry(AxObjectType(fields), false);
                walk.insert(entry);
                many.addParameterDbEntry(entry);
            }
            ASSERT_EQ(many.entries(), walk.entries) << reach[7] << ' ' << count;
            ASSERT_EQ(many.found(walk.entries[count / 2]->objectType()), walk.entries[count / 2]);
        }
    }
}

TEST_F(AxZedParameterDbTest, IndexAnswersAsTheWalkDoesForTheTypesOfAFile)
{
    char const* const file = std::getenv("ZEDOBJPARAM_TYPES");
    if (!file)
    {
        GTEST_SKIP() << "ZEDOBJPARAM_TYPES names no file of types";
    }
    std::vector<AxObjectType> asked;
    std::ifstream lines(file);
    for (std::string line; std::getline(lines, line);)
    {
        std::replace(line.begin(), line.end(), '\t', ':');
        AxObjectType type;
        if (AxObjectType::fromString(line, type))
        {
            AxObjectType::Fields neighbour = type.fields();
            neighbour[asked.size() % neighbour.size()] += 1;
            asked.insert(asked.end(), {type, AxObjectType(neighbour)});
            AxZedParameterDbEntry* const entry = newEntry(type, line.find("-1") != std::string::npos);
            db.addParameterDbEntry(entry);
        }
    }
    ASSERT_FALSE(asked.empty()) << file;
    Walk walk;
    walk.entries = db.entries();
    GroupedWalk const grouped(walk.entries);
    std::size_t const step = std::max<std::size_t>(1, asked.size() / 1000);
    for (std::size_t i = 0; i < asked.size(); ++i)
    {
        ASSERT_EQ(db.found(asked[i]), grouped.found(asked[i])) << asked[i].string();
        if (i % step == 0)
        {
            ASSERT_EQ(grouped.found(asked[i]), walk.found(asked[i])) << asked[i].string();
        }
    }
}

TEST_F(AxZedParameterDbTest, EqualTypesReplaceEachOtherByTheirMarks)
{
    struct Case
    {
        std::string added;  // e: exact, m: match type, Z: a type above; in this order
        std::string listed; // what the list holds then
        int answers;        // which addition answers for the type, counted from 0; -1: none
    };
    Case const cases[] = {
        {"", "", -1},       {"e", "e", 0},       {"m", "m", 0},      {"me", "e", 1}, {"mm", "m", 1},
        {"ee", "e", 1},     {"Zee", "eZ", 2},    {"Zem", "emZ", 1}, // both stay, the exact one answers
        {"em", "e", 0}, // nothing sorts above: the match type is not inserted
        {"emm", "e", 0},    {"Zemm", "emmZ", 1}, {"Zeme", "meZ", 2}, // only one old entry goes
        {"emZm", "emZ", 0},
    };
    for (Case const& row : cases)
    {
        WalkedDatabase made;
        std::vector<AxZedParameterDbEntry const*> added;
        for (char const mark : row.added)
        {
            AxZedParameterDbEntry* const entry = newEntry(mark == 'Z' ? typeOf("2:1:1:1:1:1:1:1") : tank, mark == 'm');
            added.push_back(entry);
            made.addParameterDbEntry(entry);
        }
        std::string listed;
        for (AxZedParameterDbEntry const* entry : made.entries())
        {
            listed += !(entry->objectType() == tank) ? 'Z' : entry->typeIsMatchType() ? 'm' : 'e';
        }
        EXPECT_EQ(listed, row.listed) << row.added;
        EXPECT_EQ(made.numParameterEntries(), static_cast<int>(row.listed.size())) << row.added;
        AxZedParameterDbEntry const* const answer = made.lookupParameterDbEntry(tank, nullptr);
        if (row.added != "Zeme")
        {
            EXPECT_EQ(answer, row.answers < 0 ? nullptr : added[static_cast<std::size_t>(row.answers)]) << row.added;
        }
        else
        {
            EXPECT_TRUE(answer->typeIsMatchType());
        }
    }
}

TEST_F(AxZedParameterDbTest, ADerivedSearchDecidesWhatIsReplaced)
{
    BlindDatabase blind;
    for (int const extra : {1, 2, 1})
    {
        blind.addParameterDbEntry(newEntry(AxObjectType(1, 1, 1, 225, 1, 1, 3, extra), false));
    }
    EXPECT_EQ(blind.numParameterEntries(), 3);
}

TEST_F(AxZedParameterDbTest, TypesThatFitGetTheLastOfAnEqualRun)
{
    AxZedParameterDbEntry* const exact = newEntry(tanks, false);
    AxZedParameterDbEntry* const match = newEntry(tanks, true);
    db.addParameterDbEntry(newEntry(typeOf("2:1:1:1:1:1:1:1"), false));
    db.addParameterDbEntry(exact);
    db.addParameterDbEntry(match);
    EXPECT_EQ(db.found(tanks), exact);
    EXPECT_EQ(db.found(tank), match);
    db.remove(tanks);
    EXPECT_EQ(db.found(tanks), match);
}

TEST_F(AxZedParameterDbTest, AnEntryOutsideTheListIsUsableAndNeverFound)
{
    AxZedObjectParameters* const held = record();
    db.add(tank, record());
    AxZedParameterDbEntry* const outside = newEntry(tank, true);
    outside->setParameters(held);
    db.addParameterDbEntry(outside);
    EXPECT_EQ(outside->parameters(), held);
    EXPECT_NE(db.lookup(tank), held);
    db.remove(tank);
    EXPECT_EQ(db.lookup(tank), nullptr);
    delete outside;
    EXPECT_EQ(db.numParameterEntries(), 0);
}

TEST_F(AxZedParameterDbTest, AnswersNothingWhenEmpty)
{
    AxObjectType matched = tank;
    EXPECT_EQ(db.lookup(tank, &matched), nullptr);
    EXPECT_EQ(matched, tank);
    EXPECT_EQ(db.numParameterEntries(), 0);
}

TEST_F(AxZedParameterDbTest, ExactBeatsTheMostSpecificPatternBeatsTheOthers)
{
    AxZedObjectParameters* const ofTank = record();
    AxZedObjectParameters* const ofTanks = record();
    db.addParameters(vehicles, record());
    db.addParameters(tank, ofTank);
    db.addParameters(tanks, ofTanks);
    AxObjectType matched;
    EXPECT_EQ(db.lookupParameters(tank, &matched), ofTank);
    EXPECT_EQ(matched, tank);
    EXPECT_EQ(db.lookupParameters(typeOf("1:1:1:225:1:1:9:0"), &matched), ofTanks);
    EXPECT_EQ(matched, tanks);
    EXPECT_EQ(db.lookupParameters(typeOf("1:2:1:225:1:1:9:0"), &matched), nullptr);
}

TEST_F(AxZedParameterDbTest, RemovesOnlyTheExactType)
{
    db.add(tanks, record());
    db.remove(tank);
    EXPECT_EQ(db.numParameterEntries(), 1);
    db.removeParameters(tanks);
    EXPECT_EQ(db.numParameterEntries(), 0);
}

TEST_F(AxZedParameterDbTest, SaysWhatItRefuses)
{
    EXPECT_EQ(db.add(tank, nullptr), nullptr);
    EXPECT_EQ(warnings.text(), "AxZedParameterDb::addParameters() : Attempt to add NULL parameter entry\n");
    warnings.clear();
    db.addParameterDbEntry(nullptr);
    EXPECT_EQ(warnings.text(), "AxZedParameterDb::addParameters : attempting to add NULL entry\n");
    warnings.clear();
    WalkedDatabase other;
    other.addParameterDbEntry(db.add(tank, record()));
    EXPECT_EQ(findings.back().code, "entry-held");
    EXPECT_EQ(db.numParameterEntries(), 1);
    EXPECT_EQ(other.numParameterEntries(), 0);
}

TEST_F(AxZedParameterDbTest, EntriesAreNamedByTheirType)
{
    AxZedParameterDbEntry entry;
    entry.setObjectType(tank);
    EXPECT_EQ(entry.uniqueIdentifier(), "1:1:1:225:1:1:3:0");
    entry.setObjectType(typeOf("1:2:225:1:1:0:0"));
    EXPECT_EQ(entry.uniqueIdentifier(), "1:2:225:1:1:0:0");
}

TEST_F(AxZedParameterDbTest, ExtensionsAreSharedWithSystemDefinitions)
{
    std::list<AxString>* const extensions = db.getSysDefExtensionList();
    std::list<AxString> const before = *extensions;
    db.addExtension("sysdef");
    EXPECT_EQ(extensions, AxReaderWriterFileExtensible::getExtensionList());
    EXPECT_EQ(extensions->size(), before.size() + 1);
    *extensions = before;
}
