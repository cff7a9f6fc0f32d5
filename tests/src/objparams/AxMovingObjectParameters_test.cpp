#include "AxMovingObjectParameters.h"

#include "RecordFixture.h"

TEST(AxMovingObjectParameters, NewRecordWritesThatItIsOrganizedAndNoDefault)
{
    AxMovingObjectParameters const record("m", nullptr);
    EXPECT_TRUE(record.organized());
    EXPECT_EQ(record.writtenText(), "(m\n  (parameter-type \"moving-object-param\")\n  (bounding-geometry-type 2)\n"
                                    "  (is-organized true))\n");
    EXPECT_EQ(record.registryIfAny()->count(), 60);
}

TEST(AxMovingObjectParameters, DefaultsAndKeywordsInOrder)
{
    AxMovingObjectParameters const record("m", nullptr);
    std::string const text = record.writtenText(true);
    std::string const expected = R"(
  (can-pivot false)
  (max-pivot-speed 0.0)
  (left-support 0.5 -1.0 0.0)
  (right-support 0.5 1.0 0.0)
  (other-support -0.2 0.0 0.0)
  (max-speed 15.0)
  (max-reverse-speed 10.0)
  (turning-radius 5.0)
  (max-slope 1.0)
  (ordered-speed 10.0)
  (max-acceleration 4.5)
  (max-deceleration 4.5)
  (max-lateral-acceleration 9.8)
  (fuel-efficiency 1000.0)
  (object-geometry-file "")
  (use-object-geometry false)
  (mime-character
    (character "")
    (animation-set ""))
  (disaggregation-range 1000.0)
  (using-rail-movement false)
  (illumination-recalc-time 300)
  (weather-area-recalc-time 10))
)";
    EXPECT_EQ(text.substr(text.size() - std::min(text.size(), expected.size())), expected);
}

TEST(AxMovingObjectParameters, CloneIsOfItsClass)
{
    AxMovingObjectParameters record("m", nullptr);
    record.setMaxStoppingDeceleration(7.0);
    record.setMaxDisaggregationDistance(8.0);
    RecordPtr const clone(record.clone("n", nullptr));
    auto const* const moving = dynamic_cast<AxMovingObjectParameters*>(clone.get());
    ASSERT_TRUE(moving);
    EXPECT_TRUE(*moving == record);
    EXPECT_EQ(moving->maxStoppingDeceleration(), 7.0);
    EXPECT_EQ(moving->name(), "n");
    EXPECT_NE(moving->writtenText().find("(max-deceleration 7.0)\n  (disaggregation-range 8.0)"), std::string::npos);
}
