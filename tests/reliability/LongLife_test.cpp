#include "Allocations.h"
#include "AxModelSet.h"
#include "SystemCalls.h"
#include "src/paramdb/DatabaseFixture.h"

#include <cstdlib>

// ZEDOBJPARAM_ROUNDS sets the number of rounds; what is kept between them grows in none of them.
TEST(LongLife, MemoryIsFlatAfterTheTenthRound)
{
    char const* const given = std::getenv("ZEDOBJPARAM_ROUNDS");
    int const rounds = given ? std::atoi(given) : 25;
    AxDefaultComponentDescriptorFactory components;
    AxDefaultParameterFactory records;
    AxComponentDescriptor::setFactory(&components);
    AxZedObjectParameters::setFactory(&records);
    AxSinkScope const warnings(AxWarn, [](std::string const&) {});
    boost::filesystem::path const folder =
        boost::filesystem::temp_directory_path() / boost::filesystem::unique_path("long-life-%%%%%%%%");
    boost::filesystem::create_directories(folder);
    std::size_t liveAfterTenth = 0;
    std::size_t afterTenth = 0;
    std::size_t least = 0;
    for (int round = 1; round <= rounds && !HasFailure(); ++round)
    {
        // A database keeps the variables of every file that it has read, so that each round has its own.
        auto database = std::make_unique<AxSxpParameterDb>();
        AxSxpParameterDb& db = *database;
        db.init();
        ASSERT_TRUE(db.load(AxFilename(ZEDOBJPARAM_SOURCE_DIR "/examples/force/force.opd")));
        std::vector<AxObjectType> types;
        for (AxListItem const* item = db.parameterList().first(); item; item = item->next())
        {
            types.push_back(static_cast<AxZedParameterDbEntry*>(item->data())->objectType());
        }
        for (AxObjectType const& type : types)
        {
            AxZedObjectParameters* const record = db.lookup(type);
            ASSERT_TRUE(record);
            record->setMass(round);
            record->setDisplayName(AxString("round " + std::to_string(round)));
            db.lookup(AxObjectType(99, round % 7, 0, 0, 0, 0, 0, 0));
        }
        {
            SystemFaultScope const withoutWaiting({});
            ASSERT_TRUE(db.save(AxFilename((folder / "force.opd").string())));
        }
        db.removeAll();
        database.reset();
        std::size_t const live = liveAllocations();
        std::size_t const used = heapUse();
        liveAfterTenth = round == 10 ? live : liveAfterTenth;
        afterTenth = round == 10 ? used : afterTenth;
        if (round > 10)
        {
            EXPECT_EQ(live, liveAfterTenth) << "in round " << round;
            EXPECT_LE(used, afterTenth + 131072) << "in round " << round;
        }
        least = used;
    }
    RecordProperty("bytes", std::to_string(least));
    boost::filesystem::remove_all(folder);
    AxZedObjectParameters::setFactory(nullptr);
    AxComponentDescriptor::setFactory(nullptr);
}
